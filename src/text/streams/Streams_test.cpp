#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "testing/RandomBytes.h"
#include "testing/Recorders.h"
#include "text/bytes/Ascii.h"
#include "text/streams/AsciiCaseFilters.h"
#include "text/streams/DataFilterer.h"
#include "text/streams/DataReader.h"
#include "text/streams/LineFlattener.h"
#include "text/streams/LineMaker.h"
#include "text/streams/ReadReader.h"
#include "text/streams/StreamHelpers.h"
#include "text/streams/StringReceiver.h"
#include "text/streams/VectorAppender.h"

namespace {

// Gives a text in reads of the sizes it is told, over and over; a size of 0 reads nothing
// while unfinished, as a reader waiting for more may.
class ChunkReader : public DataReader {
  public:
    using DataReader::operator>>;
    ChunkReader(std::string t, std::vector<std::size_t> s)
        : text(std::move(t)), sizes(std::move(s)) {}

    bool Finished() const override { return at == text.size(); }
    DataReader& operator>>(Buffer& target) override {
        std::size_t n = std::min({sizes[next++ % sizes.size()], text.size() - at, target.Size()});
        std::copy_n(text.data() + at, n, target.cursor);
        target.cursor += n;
        at += n;
        return *this;
    }

  private:
    std::string text;
    std::vector<std::size_t> sizes;
    std::size_t at = 0;
    std::size_t next = 0;
};

// Holds all of its input and writes it backwards when flushed, as much as each Flush allows.
class Reverser : public DataFilter {
  public:
    using DataFilter::operator();
    void operator()(ConstBuffer& in, Buffer&) override {
        held.append(reinterpret_cast<char const*>(in.cursor), in.Size());
        in.cursor = in.end;
    }
    bool Flushed() const override { return held.empty(); }
    void Flush(Buffer& out) override {
        while (!held.empty() && !out.Full()) {
            *out.cursor++ = static_cast<unsigned char>(held.back());
            held.pop_back();
        }
    }
    std::string held;
};

// Takes nothing and gives nothing.
class Stuck : public DataFilter {
  public:
    using DataFilter::operator();
    void operator()(ConstBuffer&, Buffer&) override {}
};

}  // namespace

TEST(ReadReader, PushesEverythingInChunksOfAtMost2048) {
    std::mt19937 random(17);
    std::string const text = RandomBytes(random, 5000);
    for (auto const& sizes : std::vector<std::vector<std::size_t>>{{100000}, {0, 1, 0, 7}, {3}}) {
        ChunkReader reader(text, sizes);
        DataRecorder recorder;
        ReadReader(reader, recorder);
        EXPECT_EQ(recorder.text, text);
        EXPECT_EQ(recorder.starts + recorder.ends, 2);
        EXPECT_LE(*std::max_element(recorder.chunks.begin(), recorder.chunks.end()), 2048u);
        // Reads that bring nothing are not passed on.
        EXPECT_EQ(std::count(recorder.chunks.begin(), recorder.chunks.end(), 0u), 0);
    }
    EXPECT_EQ(ReadReader(DataReader::Empty()), "");

    // The line form puts a LineMaker in front, which holds a CR across reads.
    ChunkReader lines("a\r\nb\n\rc\r", {1});
    std::string flat;
    StringReceiver flatReceiver(flat);
    LineFlattener flattener(LineFlattener::space, flatReceiver);
    ReadReader(lines, flattener);
    EXPECT_EQ(flat, "a b c ");
}

TEST(DataReader, FillingDataRaisesNoMoreDataWhenTheReaderRunsOut) {
    unsigned char space[11];
    ChunkReader exact("0123456789", {3, 0});
    exact >> Data(space, 10);
    EXPECT_TRUE(exact.Finished());

    ChunkReader tooShort("0123456789", {4});
    EXPECT_THROW(tooShort >> Data(space, 11), NoMoreData);
    // What was there stays read.
    EXPECT_EQ(ConstData(space, 10), ConstData("0123456789"));

    EXPECT_THROW(DataReader::Empty() >> Data(space, 1), NoMoreData);
}

TEST(Receivers, StringStartsEmptyAndVectorAppends) {
    std::string text = "old";
    StringReceiver stringReceiver(text);
    ConstData const parts[] = {ConstData("ab"), ConstData(), ConstData("cd")};
    StartReceiveAndEnd(stringReceiver, ConstDataRopeReference(parts));
    EXPECT_EQ(text, "abcd");

    std::vector<unsigned char> bytes = {'x'};
    VectorAppender appender(bytes);
    StartReceiveAndEnd(appender, ConstDataRopeReference(parts));
    appender(bytes);
    StartReceiveAndEnd(appender, ConstData("e"));
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), "xabcde");
}

TEST(DataFilterer, StagesAtMost1024BytesAndFlushesUntilDone) {
    std::string input(3000, 'q');
    for (std::size_t i = 0; i < input.size(); ++i) input[i] = static_cast<char>('a' + i % 26);

    // Everything comes out of the flushes, which need several rounds of the staging buffer.
    Reverser reverser;
    DataRecorder reversed;
    ConstData const parts[] = {ConstData(input.data(), 1000), ConstData(input.data() + 1000, 2000)};
    StartReceiveAndEnd(reversed, ConstDataRopeReference(parts), reverser);
    EXPECT_EQ(reversed.text, std::string(input.rbegin(), input.rend()));
    EXPECT_EQ(reversed.chunks, (std::vector<std::size_t>{1024, 1024, 952}));
    EXPECT_EQ(reversed.ends, 1);

    EXPECT_EQ(ApplyFilter(input, DataFilter::copy), input);

    // A filter that makes no headway can't hold the stream for ever.
    Stuck stuck;
    DataRecorder nothing;
    EXPECT_THROW(StartReceiveAndEnd(nothing, ConstData("x"), stuck), DataOverflow);
}

TEST(AsciiCaseFilters, GiveTheSameBytesInAnyChunking) {
    std::mt19937 random(13);
    std::string input;
    for (int b = 0; b < 256; ++b) input += static_cast<char>(b);
    std::string expected = Ascii::RaiseCase(ConstData(input));
    for (int round = 0; round < 300; ++round) {
        std::string output(input.size(), '\0');
        ConstBuffer in{ConstData(input)};
        Buffer out(Data(&output[0], output.size()));
        while (!in.Empty()) {
            std::size_t inChunk = std::min<std::size_t>(in.Size(), random() % 9);
            std::size_t outChunk = std::min<std::size_t>(out.Size(), random() % 9);
            ConstBuffer inPart(in.cursor, in.cursor + inChunk);
            Buffer outPart(out.cursor, out.cursor + outChunk);
            Ascii::RaiseCase()(inPart, outPart);
            ASSERT_EQ(std::min(inChunk, outChunk), std::size_t(inPart.cursor - in.cursor));
            in.cursor = inPart.cursor;
            out.cursor = outPart.cursor;
        }
        ASSERT_EQ(expected, output);
    }
    unsigned char lowered[3] = {};
    Ascii::LowerCase()(ConstData("AbCdE"), Data(lowered));
    EXPECT_EQ("abc", MakeString(ConstData(lowered, 3)));
}
