#include "text/streams/DataFilterer.h"

namespace {

constexpr std::size_t stagingSize = 1024;

}  // namespace

void DataFilterer::Receive(ConstData data) {
    ConstBuffer input(data);
    while (!input.Empty()) {
        unsigned char staging[stagingSize];
        Buffer output(staging, staging + stagingSize);
        unsigned char const* const before = input.cursor;
        (*filter)(input, output);
        if (output.cursor != staging) {
            target->Receive(ConstData(staging, static_cast<unsigned char const*>(output.cursor)));
        } else if (input.cursor == before) {
            // A filter that neither reads nor writes would hold this loop for ever.
            throw DataOverflow();
        }
    }
}

void DataFilterer::ReceiveEnd() {
    while (!filter->Flushed()) {
        unsigned char staging[stagingSize];
        Buffer output(staging, staging + stagingSize);
        filter->Flush(output);
        if (output.cursor == staging) throw DataOverflow();
        target->Receive(ConstData(staging, static_cast<unsigned char const*>(output.cursor)));
    }
    target->ReceiveEnd();
}
