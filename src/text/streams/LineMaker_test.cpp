#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "text/streams/LineFlattener.h"
#include "text/streams/LineMaker.h"
#include "text/streams/StreamHelpers.h"
#include "text/streams/StringReceiver.h"

namespace {

// Writes what a LineReceiver sees as text: S(start) 'line text' [break start,end] E(end).
// Parts of one line are joined, so that the record doesn't depend on the chunking.
class LineRecorder : public LineReceiver {
  public:
    std::string record;
    std::vector<std::pair<std::string, Range<unsigned long long>>> lines;

    void Start(unsigned long long position) override { record += "S" + std::to_string(position); }
    void Receive(ConstData part) override {
        EXPECT_FALSE(part.Empty());
        EXPECT_FALSE(part.Contains('\r') || part.Contains('\n'));
        text += MakeString(part);
    }
    void ReceiveLineBreak(Range<unsigned long long> positions) override {
        FlushText();
        record += "[" + std::to_string(positions.start) + "," + std::to_string(positions.end) + "]";
        lines.emplace_back(lineText, positions);
        lineText.clear();
    }
    void ReceiveEnd(unsigned long long position) override {
        FlushText();
        record += "E" + std::to_string(position);
        lines.emplace_back(lineText, Range<unsigned long long>(position, position));
    }

  private:
    void FlushText() {
        if (!text.empty()) record += "'" + text + "'";
        lineText += text;
        text.clear();
    }
    std::string text;
    std::string lineText;
};

// Feeds input cut at the given places (in order) and returns what the receiver saw.
LineRecorder FeedLines(std::string const& input, std::vector<std::size_t> cuts,
                       unsigned long long start = 0) {
    LineRecorder recorder;
    LineMaker maker(recorder);
    maker.Start(start);
    cuts.push_back(input.size());
    for (std::size_t from = 0, i = 0; i < cuts.size(); from = cuts[i++])
        maker.Receive(ConstData(input.data() + from, input.data() + cuts[i]));
    maker.ReceiveEnd();
    return recorder;
}

}  // namespace

TEST(LineMaker, BreaksOfOneAndTwoBytesInEveryChunking) {
    struct Case {
        char const* input;
        char const* record;
    } const cases[] = {
        {"a\r\nb", "S0'a'[1,3]'b'E4"},
        {"a\n\rb", "S0'a'[1,3]'b'E4"},
        {"a\n\nb", "S0'a'[1,2][2,3]'b'E4"},
        {"a\r\rb", "S0'a'[1,2][2,3]'b'E4"},
        {"a\r\n\r\nb", "S0'a'[1,3][3,5]'b'E6"},
        {"a\n\r\nb", "S0'a'[1,3][3,4]'b'E5"},
        {"a\r", "S0'a'[1,2]E2"},
        {"\n", "S0[0,1]E1"},
        {"", "S0E0"},
    };
    for (auto const& c : cases) {
        std::string const input = c.input;
        EXPECT_EQ(FeedLines(input, {}).record, c.record) << input;
        std::vector<std::size_t> everyByte;
        for (std::size_t cut = 0; cut <= input.size(); ++cut) everyByte.push_back(cut);
        EXPECT_EQ(FeedLines(input, everyByte).record, c.record) << input;
    }
    // Positions count from the start that was given.
    EXPECT_EQ(FeedLines("a\r\nb", {2}, 100).record, "S100'a'[101,103]'b'E104");
}

TEST(LineMaker, RandomTextIsCutIntoMaximalBreaksWhateverTheChunks) {
    std::mt19937 random(3);
    for (int round = 0; round < 500; ++round) {
        std::string input;
        for (std::size_t n = random() % 40; n > 0; --n) input += "ab\r\n"[random() % 4];
        std::vector<std::size_t> cuts;
        for (std::size_t n = random() % 6; n > 0; --n)
            cuts.push_back(random() % (input.size() + 1));
        std::sort(cuts.begin(), cuts.end());

        LineRecorder const recorder = FeedLines(input, cuts);
        ASSERT_EQ(recorder.record, FeedLines(input, {}).record) << input;

        // The lines and the bytes of their breaks put together are the input again; every break
        // takes its partner byte when one follows.
        std::string rebuilt;
        for (auto const& [text, positions] : recorder.lines) {
            ASSERT_EQ(positions.start, rebuilt.size() + text.size());
            rebuilt += text;
            std::string const breakBytes =
                input.substr(positions.start, positions.end - positions.start);
            rebuilt += breakBytes;
            if (breakBytes.size() == 2) {
                ASSERT_TRUE(breakBytes == "\r\n" || breakBytes == "\n\r") << input;
            } else if (breakBytes.size() == 1 && positions.end < input.size()) {
                char const partner = breakBytes == "\r" ? '\n' : '\r';
                ASSERT_NE(input[positions.end], partner) << input;
            }
        }
        ASSERT_EQ(rebuilt, input);
    }
}

TEST(LineFlattener, PutsTheChosenSeparatorForEachBreak) {
    struct Case {
        ConstData separator;
        char const* output;
    } const cases[] = {
        {LineFlattener::lf, "a\nb\nc\n\nd"},
        {LineFlattener::cr, "a\rb\rc\r\rd"},
        {LineFlattener::crlf, "a\r\nb\r\nc\r\n\r\nd"},
        {LineFlattener::space, "a b c  d"},
        {LineFlattener::nothing, "abcd"},
    };
    for (auto const& c : cases) {
        std::string output = "old";
        StringReceiver receiver(output);
        LineFlattener flattener(c.separator, receiver);
        LineMaker maker(flattener);
        StartReceiveAndEnd(maker, ConstData("a\r\nb\rc\n\n\rd"));
        EXPECT_EQ(output, c.output);
    }
}
