#include "text/streams/Base64.h"

#include "text/streams/Base64Decoder.h"
#include "text/streams/Base64Encoder.h"

std::string Base64Encode(ConstData bytes) {
    // Encoded straight into the string, which has exactly the room the text needs.
    std::string text((bytes.Size() + 2) / 3 * 4, '\0');
    unsigned char* const begin = reinterpret_cast<unsigned char*>(&text[0]);
    Base64Encoder encoder;
    ConstBuffer input(bytes);
    Buffer output(begin, begin + text.size());
    encoder(input, output);
    while (!encoder.Flushed()) encoder.Flush(output);
    return text;
}

std::vector<unsigned char> Base64Decode(ConstData text) {
    // Decoded straight into the vector, sized for the most the text can hold; no stage in
    // between, since the whole input is at hand.
    std::vector<unsigned char> bytes(text.Size() / 4 * 3 + 3);
    Base64Decoder decoder;
    ConstBuffer input(text);
    Buffer output(bytes.data(), bytes.data() + bytes.size());
    while (!input.Empty()) decoder(input, output);
    bytes.resize(static_cast<std::size_t>(output.cursor - bytes.data()));
    return bytes;
}
