#include "text/streams/Base64DecodingDataMaker.h"

namespace {

constexpr std::size_t stagingSize = 1024;

}  // namespace

void Base64DecodingDataMaker::Start(unsigned long long) {
    decoder = Base64Decoder();
    target->Start();
}

void Base64DecodingDataMaker::Receive(ConstData part) {
    ConstBuffer input(part);
    while (!input.Empty()) {
        unsigned char staging[stagingSize];
        Buffer output(staging, staging + stagingSize);
        decoder(input, output);
        if (output.cursor != staging) {
            target->Receive(ConstData(staging, static_cast<unsigned char const*>(output.cursor)));
        }
    }
}
