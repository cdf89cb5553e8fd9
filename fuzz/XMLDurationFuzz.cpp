// Feeds arbitrary bytes to the reader of XML durations. Only ExceptionPL may come out, and
// whatever it reads must print as a duration that reads back to the same interval.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "text/bytes/BytesErrors.h"
#include "time/XMLTime.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    UStringRef<UTF8> const text(data, data + size);
    TimeInterval interval;
    try {
        interval = XMLDurationToTimeInterval(text);
    } catch (ExceptionPL const&) {
        return 0;
    }
    if (interval.Microseconds() == std::numeric_limits<std::int64_t>::min()) return 0;
    AutoUString<UTF8> const written = TimeIntervalToXMLDuration(interval);
    if (XMLDurationToTimeInterval(written) != interval) std::abort();
    return 0;
}
