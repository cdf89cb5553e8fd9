// Feeds arbitrary bytes to the four readers of time text. Only their documented failures may
// come out, and a reading that the writer can print must read back to the same fields.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "text/bytes/BytesErrors.h"
#include "time/TextToTime.h"
#include "time/TimeErrors.h"
#include "time/TimeText.h"

namespace {

template <class Call>
void Guarded(Call call) {
    try {
        call();
    } catch (ParsingFailure const&) {
    } catch (StackFull const&) {
    } catch (InvalidTime const&) {
    }
}

void CheckRoundTrip(TimeObject const& reading) {
    // Five-digit years and zones of 100 hours or more have no text of fixed capacity.
    if (reading.date.year > 9999 || reading.zone.seconds <= -360000 ||
        reading.zone.seconds >= 360000 || reading.zone.seconds % 60 != 0)
        return;
    TimeObject const back = TextToTime(TimeToText(reading));
    if (back.date != reading.date || back.timeOfDay != reading.timeOfDay ||
        back.zone != reading.zone)
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    ConstData const text(data, size);
    Guarded([&] { CheckRoundTrip(TextToTime(text)); });
    Guarded([&] {
        TimeObject const converted = TextToTime(text, TimeZone(3600));
        if (converted.zone != TimeZone(3600) || !converted.Valid()) std::abort();
    });
    Guarded([&] {
        if (!TextToDate(text).Valid()) std::abort();
    });
    Guarded([&] {
        if (!TextToTimeOfDay(text).Valid()) std::abort();
    });
    Guarded([&] { TextToZonedTimeOfDay(text); });
    Guarded([&] { TextToZonedTimeOfDay(text, TimeZone(-18000)); });
    return 0;
}
