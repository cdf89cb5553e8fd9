#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "testing/RandomBytes.h"
#include "testing/TestText.h"
#include "text/streams/Base64.h"
#include "text/streams/Base64Decoder.h"
#include "text/streams/Base64DecodingDataMaker.h"
#include "text/streams/Base64Encoder.h"
#include "text/streams/Base64EncodingLineMaker.h"
#include "text/streams/LineFlattener.h"
#include "text/streams/LineMaker.h"
#include "text/streams/StreamHelpers.h"
#include "text/streams/StringReceiver.h"
#include "text/streams/VectorAppender.h"

namespace {

// Runs the filter over input, cut into random pieces, into random-sized output windows of at
// least minimumOutput bytes, then flushes it into windows of at least three bytes, the most that
// a padded tail needs in one piece.
std::string FilterInPieces(DataFilter& filter, ConstData input, std::mt19937& random,
                           std::size_t minimumOutput) {
    std::string result;
    unsigned char window[16];
    auto outputSize = [&] { return minimumOutput + random() % (sizeof window - minimumOutput); };
    ConstBuffer in(input.begin, input.begin);
    while (in.end != input.end) {
        in.end += std::min<std::size_t>(random() % 20, input.end - in.end);
        while (!in.Empty()) {
            Buffer out(window, window + outputSize());
            filter(in, out);
            result.append(reinterpret_cast<char*>(window), out.cursor - window);
        }
    }
    while (!filter.Flushed()) {
        Buffer out(window, window + std::max<std::size_t>(3, outputSize()));
        filter.Flush(out);
        result.append(reinterpret_cast<char*>(window), out.cursor - window);
    }
    return result;
}

}  // namespace

TEST(Base64, KnownAnswersBothWays) {
    // RFC 4648 section 10.
    struct Case {
        char const* bytes;
        char const* text;
    } const cases[] = {{"", ""},
                       {"f", "Zg=="},
                       {"fo", "Zm8="},
                       {"foo", "Zm9v"},
                       {"foob", "Zm9vYg=="},
                       {"fooba", "Zm9vYmE="},
                       {"foobar", "Zm9vYmFy"},
                       {"a", "YQ=="}};
    for (auto const& c : cases) {
        EXPECT_EQ(Base64Encode(c.bytes), c.text) << c.bytes;
        EXPECT_EQ(Str(Base64Decode(c.text)), c.bytes) << c.text;
    }
}

TEST(Base64, AlphabetStandsForItsSextetsInOrder) {
    // The 48 bytes whose 64 sextets are 0, 1, ..., 63 encode to the alphabet itself.
    std::vector<unsigned char> bytes;
    for (unsigned sextet = 0; sextet < 64; sextet += 4) {
        std::uint32_t group = sextet << 18 | (sextet + 1) << 12 | (sextet + 2) << 6 | (sextet + 3);
        bytes.push_back(static_cast<unsigned char>(group >> 16));
        bytes.push_back(static_cast<unsigned char>(group >> 8));
        bytes.push_back(static_cast<unsigned char>(group));
    }
    EXPECT_EQ(Base64Encode(bytes), Base64Encoder::alphabet);
    EXPECT_EQ(Base64Decode(Base64Encoder::alphabet), bytes);
    EXPECT_TRUE(Base64Decoder::TableIsCorrect());
}

TEST(Base64, DecodingSkipsEveryByteOutsideTheAlphabet) {
    struct Case {
        std::string text;
        char const* bytes;
    } const cases[] = {
        {"Y Q\n= =", "a"},
        {"\r\nZm9v\r\nYmFy\r\n", "foobar"},
        {"=Zm=9v====", "foo"},
        {"Y", ""},          // six bits make no byte
        {"YQ", "a"},        // padding is not needed
        {"YWJjZ", "abc"},   // the bits of the lone "Z" are dropped
        {"YQ=x", "a\x0c"},  // "=" is skipped, so "x" goes on from the bits that "Q" left
        {std::string("\xff\x80Z!g\0", 6), "f"},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(Str(Base64Decode(c.text)), c.bytes) << c.text;
    }
}

TEST(Base64, RandomBytesSurviveAnyChunkingOfTheFilters) {
    std::mt19937 random(20261121);
    for (int round = 0; round < 300; ++round) {
        std::vector<unsigned char> bytes =
            RandomBytes<std::vector<unsigned char>>(random, random() % 200);
        std::string const expected = Base64Encode(bytes);
        ASSERT_EQ(expected.size(), (bytes.size() + 2) / 3 * 4);

        // The encoder copes with a single byte of output at a time.
        Base64Encoder encoder;
        std::string const encoded = FilterInPieces(encoder, bytes, random, round % 2 ? 1 : 3);
        ASSERT_EQ(encoded, expected);

        // Line breaks and blanks anywhere don't matter to the decoder.
        std::string noisy;
        for (char c : encoded) {
            if (random() % 8 == 0) noisy += " \r\n\t"[random() % 4];
            noisy += c;
        }
        Base64Decoder decoder;
        ASSERT_EQ(FilterInPieces(decoder, noisy, random, 1), Str(bytes));
    }
}

TEST(Base64, EncoderFlushNeedsRoomForTheWholePaddedTail) {
    // "a" leaves 2 bits after "Y": the tail "Q==" needs three bytes at once.
    Base64Encoder encoder;
    unsigned char space[2];
    Buffer out(space, space + 1);
    encoder(ConstData("a"), out);
    Buffer small(space, space + 2);
    EXPECT_THROW(encoder.Flush(small), DataOverflow);
    EXPECT_FALSE(encoder.Flushed());
}

TEST(Base64EncodingLineMaker, LinesOf64CharactersDecodeBackInAnyChunking) {
    std::mt19937 random(11);
    for (std::size_t size : {0, 1, 47, 48, 49, 96, 97, 3001}) {
        std::vector<unsigned char> bytes = RandomBytes<std::vector<unsigned char>>(random, size);
        std::string text;
        StringReceiver textReceiver(text);
        LineFlattener flattener(LineFlattener::lf, textReceiver);
        Base64EncodingLineMaker encoder(flattener);
        StartReceiveAndEnd(encoder, bytes);

        // Full lines of 64, then a last line of what remains, possibly empty, and its break.
        std::string const encoded = Base64Encode(bytes);
        std::string expected;
        std::size_t at = 0;
        for (; at + 64 <= encoded.size(); at += 64) expected += encoded.substr(at, 64) + "\n";
        EXPECT_EQ(text, expected + encoded.substr(at) + "\n");

        std::vector<unsigned char> decoded;
        VectorAppender appender(decoded);
        Base64DecodingDataMaker decoder(appender);
        LineMaker lineMaker(decoder);
        lineMaker.Start();
        for (at = 0; at < text.size();) {
            std::size_t piece = std::min<std::size_t>(1 + random() % 100, text.size() - at);
            lineMaker.Receive(ConstData(text.data() + at, piece));
            at += piece;
        }
        lineMaker.ReceiveEnd();
        EXPECT_EQ(decoded, bytes) << size;
    }
}
