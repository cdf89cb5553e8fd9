#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

#include "testing/Recorders.h"
#include "text/unicode/StreamTranscoder.h"
#include "text/unicode/Transcode.h"

namespace {

typedef std::vector<UTF8::Unit> Bytes;
typedef std::vector<UTF16::Unit> Words;
typedef std::vector<UTF32::Unit> Codes;

void AppendUTF8(Bytes& out, std::uint32_t cp) {
    int length = cp < 0x80 ? 1 : cp < 0x800 ? 2 : cp < 0x10000 ? 3 : 4;
    static UTF8::Unit const leads[] = {0, 0x00, 0xC0, 0xE0, 0xF0};
    out.push_back(static_cast<UTF8::Unit>(leads[length] | cp >> 6 * (length - 1)));
    for (int shift = 6 * (length - 2); shift >= 0; shift -= 6)
        out.push_back(0x80 | (cp >> shift & 0x3F));
}

void AppendUTF16(Words& out, std::uint32_t cp) {
    if (cp < 0x10000) {
        out.push_back(static_cast<UTF16::Unit>(cp));
    } else {
        out.push_back(static_cast<UTF16::Unit>(0xD800 + ((cp - 0x10000) >> 10)));
        out.push_back(static_cast<UTF16::Unit>(0xDC00 + ((cp - 0x10000) & 0x3FF)));
    }
}

// Random scalar values from four ranges: ASCII, two-byte, rest of the BMP, other planes.
Codes RandomScalars(std::mt19937& rng, std::size_t count) {
    static std::uint32_t const from[] = {0, 0x80, 0x800, 0x10000};
    static std::uint32_t const to[] = {0x80, 0x800, 0x10000, 0x110000};
    Codes codes(count);
    for (auto& cp : codes) {
        int range = rng() % 4;
        do {
            cp = from[range] + rng() % (to[range] - from[range]);
        } while (cp >= 0xD800 && cp < 0xE000);
    }
    return codes;
}

// Feeds input through StreamTranscoder<Target, Source> in chunks cut at the given places and
// returns what reached the target.
template <class Target, class Source>
std::vector<typename Target::Unit> FeedTranscoder(std::vector<typename Source::Unit> const& input,
                                                  std::vector<std::size_t> cuts = {}) {
    TextRecorder<Target> recorder;
    StreamTranscoder<Target, Source> transcoder(recorder);
    transcoder.Start(Source());
    cuts.push_back(input.size());
    std::size_t from = 0;
    for (std::size_t cut : cuts) {
        transcoder.Receive(
            ConstArrayOf<typename Source::Unit>(input.data() + from, input.data() + cut));
        from = cut;
    }
    transcoder.ReceiveEnd();
    EXPECT_EQ(1, recorder.starts);
    EXPECT_EQ(1, recorder.ends);
    return recorder.All();
}

// Checks the output of the whole input in one chunk and in random non-empty chunkings.
template <class Target, class Source>
void ExpectSameInEveryChunking(std::mt19937& rng, std::vector<typename Source::Unit> const& input,
                               std::vector<typename Target::Unit> const& expected) {
    ASSERT_EQ(expected, (FeedTranscoder<Target, Source>(input)));
    for (int round = 0; round < 8 && input.size() > 1; ++round) {
        std::vector<std::size_t> cuts(rng() % 12);
        for (auto& cut : cuts) cut = 1 + rng() % (input.size() - 1);
        std::sort(cuts.begin(), cuts.end());
        cuts.erase(std::unique(cuts.begin(), cuts.end()), cuts.end());
        ASSERT_EQ(expected, (FeedTranscoder<Target, Source>(input, cuts)));
    }
}

TEST(StreamTranscoder, EveryPairGivesTheSameOutputInEveryChunking) {
    std::mt19937 rng(62);
    for (int text = 0; text < 150; ++text) {
        Codes codes = RandomScalars(rng, rng() % 2500);
        Bytes utf8, ascii(rng() % 5000);
        Words utf16;
        for (auto cp : codes) AppendUTF8(utf8, cp), AppendUTF16(utf16, cp);
        for (auto& b : ascii) b = rng() % 0x80;

        ExpectSameInEveryChunking<UTF32, UTF8>(rng, utf8, codes);
        ExpectSameInEveryChunking<UTF32, UTF16>(rng, utf16, codes);
        ExpectSameInEveryChunking<UTF8, UTF32>(rng, codes, utf8);
        ExpectSameInEveryChunking<UTF16, UTF32>(rng, codes, utf16);
        ExpectSameInEveryChunking<UTF16, USAscii>(rng, ascii, Words(ascii.begin(), ascii.end()));
        ExpectSameInEveryChunking<UTF8, USAscii>(rng, ascii, ascii);
    }
}

TEST(StreamTranscoder, UTF8DecoderTakesThePayloadOfEveryForm) {
    // Overlong forms, encoded surrogates and values up to 0x1FFFFF decode to their payload.
    struct Case {
        Bytes input;
        UTF32::Unit value;
    } const cases[] = {
        {{0xC0, 0x80}, 0},
        {{0xE0, 0x80, 0x80}, 0},
        {{0xC1, 0xBF}, 0x7F},
        {{0xED, 0xA0, 0x80}, 0xD800},
        {{0xF4, 0x90, 0x80, 0x80}, 0x110000},
        {{0xF7, 0xBF, 0xBF, 0xBF}, 0x1FFFFF},
    };
    for (auto const& c : cases) EXPECT_EQ(Codes{c.value}, (FeedTranscoder<UTF32, UTF8>(c.input)));
    // The overlong zero comes back as one zero byte.
    EXPECT_EQ(Bytes{0}, (FeedTranscoder<UTF8, UTF32>(FeedTranscoder<UTF32, UTF8>({0xC0, 0x80}))));
}

// Feeds the units one Receive each. Returns the index of the unit whose Receive threw, the
// input's size when ReceiveEnd threw, or -1; output gets what reached the target.
template <class Source>
int ThrowingUnit(std::vector<typename Source::Unit> const& input, Codes& output) {
    TextRecorder<UTF32> recorder;
    StreamTranscoder<UTF32, Source> transcoder(recorder);
    transcoder.Start(Source());
    int index = 0;
    try {
        for (; index < static_cast<int>(input.size()); ++index) {
            transcoder.Receive(
                ConstArrayOf<typename Source::Unit>(&input[index], &input[index] + 1));
        }
        transcoder.ReceiveEnd();
        index = -1;
    } catch (InvalidTextEncoding const&) {
    }
    output = recorder.All();
    return index;
}

TEST(StreamTranscoder, BadInputIsFoundAtTheUnitThatDecides) {
    struct Case {
        Bytes input;
        int throwsAt;
    } const bytes[] = {
        {{0xC3}, 1},  // at ReceiveEnd, not in Receive
        {{0xC3, 0x41, 0x42, 0x43}, 3},
        {{0xC3, 0x41}, 2},
        {{0x80, 0x80, 0x80, 0x80}, 3},  // a stray follower opens a sequence
        {{0xF8, 0x88, 0x80, 0x80}, 3},
        {{0xE2, 0x82}, 2},
        {{0xF0, 0x9F, 0x98}, 3},
        {{0xC3, 0xC3, 0xA9, 0xA9}, 3},
    };
    Codes output;
    for (auto const& c : bytes) {
        EXPECT_EQ(c.throwsAt, ThrowingUnit<UTF8>(c.input, output)) << int(c.input.size());
        EXPECT_TRUE(output.empty());  // no follower is ever output as a character
    }
    EXPECT_EQ(6, ThrowingUnit<UTF8>({'A', 0xC3, 0xA9, 0xE2, 'A', 'B', 'C'}, output));
    EXPECT_EQ((Codes{'A', 0xE9}), output);

    struct WordCase {
        Words input;
        int throwsAt;
    } const words[] = {
        {{0xDC00}, 1},       // a low surrogate last is carried and fails at the end...
        {{0xDC00, 'A'}, 1},  // ...and in Receive when anything follows
        {{0xD800}, 1},
        {{0xD800, 'A'}, 1},
        {{0xD800, 0xD800}, 1},
        {{0xDBFF, 0xDFFF}, -1},
        {{0xFFFE, 0xFFFF, 0xD7FF, 0xE000}, -1},
    };
    for (auto const& c : words) EXPECT_EQ(c.throwsAt, ThrowingUnit<UTF16>(c.input, output));
}

TEST(StreamTranscoder, BadChunkSendsNothingStagedButKeepsEarlierFlushes) {
    // 5000 ASCII bytes fill four areas of 1024 units; the rest is staged when the bad sequence
    // is found, and must not reach the target.
    Bytes input(5004, 'a');
    input[5000] = 0xC3;
    TextRecorder<UTF32> recorder;
    StreamTranscoder<UTF32, UTF8> transcoder(recorder);
    transcoder.Start(UTF8());
    EXPECT_THROW(transcoder.Receive(ConstArrayOf<UTF8::Unit>(&input[0], &input[0] + input.size())),
                 InvalidTextEncoding);
    EXPECT_EQ(4096u, recorder.All().size());
}

TEST(StreamTranscoder, EmptyReceiveDropsTheCarriedPartialCharacter) {
    EXPECT_EQ(Codes{'a'}, (FeedTranscoder<UTF32, UTF8>({'a', 0xE2, 0x82}, {3})));
    EXPECT_EQ(Codes{}, (FeedTranscoder<UTF32, UTF16>({0xD83D}, {1})));
}

TEST(StreamTranscoder, EncodersRejectSurrogatesAndValuesBeyondThePlanes) {
    for (UTF32::Unit cp : {0xD800u, 0xDBFFu, 0xDC00u, 0xDFFFu, 0x110000u, 0x1FFFFFu, 0xFFFFFFFFu}) {
        EXPECT_THROW((FeedTranscoder<UTF8, UTF32>({'a', cp})), InvalidTextEncoding) << cp;
        EXPECT_THROW((FeedTranscoder<UTF16, UTF32>({'a', cp})), InvalidTextEncoding) << cp;
    }
    Codes const edges = {0, 0x7F, 0x80, 0x7FF, 0x800, 0xD7FF, 0xE000, 0xFFFF, 0x10000, 0x10FFFF};
    Bytes utf8;
    Words utf16;
    for (auto cp : edges) AppendUTF8(utf8, cp), AppendUTF16(utf16, cp);
    EXPECT_EQ(utf8, (FeedTranscoder<UTF8, UTF32>(edges)));
    EXPECT_EQ(utf16, (FeedTranscoder<UTF16, UTF32>(edges)));
}

TEST(StreamTranscoder, SevenBitSourcesRejectTheHighBit) {
    for (Bytes const& input : {Bytes{0x80}, Bytes{'a', 'b', 0xFF}}) {
        EXPECT_THROW((FeedTranscoder<UTF16, USAscii>(input)), InvalidTextEncoding);
        EXPECT_THROW((FeedTranscoder<UTF8, USAscii>(input)), InvalidTextEncoding);
    }
    // A chunk is checked whole before any of it is forwarded.
    Bytes clean = {'a', 'b', 'c'}, dirty = {'d', 'e', 0x80};
    TextRecorder<UTF8> recorder;
    StreamTranscoder<UTF8, USAscii> transcoder(recorder);
    transcoder.Receive(ConstArrayOf<USAscii::Unit>(&clean[0], &clean[0] + 3));
    EXPECT_THROW(transcoder.Receive(ConstArrayOf<USAscii::Unit>(&dirty[0], &dirty[0] + 3)),
                 InvalidTextEncoding);
    EXPECT_EQ(clean, recorder.All());
}

// Checks that one large Receive reached the target in areas of at most 4096 bytes, each sent
// only when it couldn't take a character of the longest form, and returns them joined.
template <class Target, class Source>
std::vector<typename Target::Unit> FeedWhole(std::vector<typename Source::Unit> const& input,
                                             std::size_t longest) {
    TextRecorder<Target> recorder;
    StreamTranscoder<Target, Source> transcoder(recorder);
    transcoder.Receive(ConstArrayOf<typename Source::Unit>(&input[0], &input[0] + input.size()));
    std::size_t const capacity = 4096 / sizeof(typename Target::Unit);
    EXPECT_GT(recorder.chunks.size(), 10u);
    for (std::size_t i = 0; i < recorder.chunks.size(); ++i) {
        EXPECT_LE(recorder.chunks[i].size(), capacity);
        if (i + 1 < recorder.chunks.size()) {
            EXPECT_GT(recorder.chunks[i].size(), capacity - longest);
        }
    }
    return recorder.All();
}

TEST(StreamTranscoder, LargeChunkReachesTheTargetInFullAreasInOrder) {
    std::mt19937 rng(63);
    Codes codes = RandomScalars(rng, 200000);
    Bytes utf8, ascii(200000);
    Words utf16;
    for (auto cp : codes) AppendUTF8(utf8, cp), AppendUTF16(utf16, cp);
    for (auto& b : ascii) b = rng() % 0x80;

    EXPECT_EQ(codes, (FeedWhole<UTF32, UTF8>(utf8, 1)));
    EXPECT_EQ(codes, (FeedWhole<UTF32, UTF16>(utf16, 1)));
    EXPECT_EQ(utf8, (FeedWhole<UTF8, UTF32>(codes, 4)));
    EXPECT_EQ(utf16, (FeedWhole<UTF16, UTF32>(codes, 2)));
    EXPECT_EQ(Words(ascii.begin(), ascii.end()), (FeedWhole<UTF16, USAscii>(ascii, 2)));
}

TEST(Transcode, RoundTripsToExactZeroTerminatedResults) {
    std::mt19937 rng(64);
    for (int text = 0; text < 100; ++text) {
        Codes codes = RandomScalars(rng, rng() % 50);
        UStringRef<UTF32> source(codes.data(), codes.data() + codes.size());
        AutoUString<UTF32> viaUTF8 = Transcode<UTF32, UTF8>(Transcode<UTF8, UTF32>(source));
        AutoUString<UTF32> viaUTF16 = Transcode<UTF32, UTF16>(Transcode<UTF16, UTF32>(source));
        for (AutoUString<UTF32> const* result : {&viaUTF8, &viaUTF16}) {
            ASSERT_EQ(codes, Codes(result->begin, result->end));
            ASSERT_TRUE(codes.empty() ? result->begin == nullptr : *result->end == 0);
        }
    }
    Bytes ascii = {'O', 'K'};
    AutoUString<UTF16> wide =
        Transcode<UTF16, USAscii>(UStringRef<USAscii>(&ascii[0], &ascii[0] + 2));
    EXPECT_EQ((Words{'O', 'K', 0}), Words(wide.begin, wide.end + 1));
    Bytes partial = {'a', 0xC3};
    EXPECT_THROW((Transcode<UTF32, UTF8>(UStringRef<UTF8>(&partial[0], &partial[0] + 2))),
                 InvalidTextEncoding);
}

}  // namespace
