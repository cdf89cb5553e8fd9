#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "text/streams/LineMaker.h"
#include "text/streams/MessageMaker.h"

namespace {

// Writes what a MessageReceiver, its field receiver and its body receiver (all this one object)
// see as one text:
//   S<start>  F<position> <name>='<value>'/<end>  B<position>(<body start>)'<line>'[<break>]e<end>
//   E<end>
// Parts of one value or line are joined, so the record doesn't depend on the chunking.
class MessageRecorder : public MessageReceiver, public DataReceiver, public LineReceiver {
  public:
    std::string record;

    void Start(unsigned long long p) override {
        record += inBody ? "(" + std::to_string(p) + ")" : "S" + std::to_string(p);
    }
    DataReceiver& StartHeaderField(unsigned long long p, ConstData name) override {
        record += " F" + std::to_string(p) + " " + MakeString(name);
        return *this;
    }
    void EndHeaderField(unsigned long long p) override {
        EXPECT_FALSE(fieldOpen);
        record += "/" + std::to_string(p);
    }
    LineReceiver& StartBody(unsigned long long p) override {
        record += " B" + std::to_string(p);
        inBody = true;
        return *this;
    }
    void ReceiveEnd(unsigned long long p) override {
        FlushText();
        record += (bodyEnded ? " E" : "e") + std::to_string(p);
        bodyEnded = true;
    }

    using DataReceiver::Receive;
    void Start() override {
        EXPECT_FALSE(fieldOpen);
        fieldOpen = true;
    }
    void Receive(ConstData data) override { text += MakeString(data); }
    void ReceiveEnd() override {
        EXPECT_TRUE(fieldOpen);
        fieldOpen = false;
        record += "='" + text + "'";
        text.clear();
    }
    void ReceiveLineBreak(Range<unsigned long long> r) override {
        FlushText();
        record += "[" + std::to_string(r.start) + "," + std::to_string(r.end) + "]";
    }

  private:
    void FlushText() {
        if (!text.empty()) record += "'" + text + "'";
        text.clear();
    }
    std::string text;
    bool fieldOpen = false, inBody = false, bodyEnded = false;
};

// Feeds input in pieces of the given size after an empty one and returns the record.
std::string MessageRecord(std::string const& input, std::size_t piece) {
    MessageRecorder recorder;
    MessageMaker messageMaker(recorder);
    LineMaker lineMaker(messageMaker);
    lineMaker.Start();
    lineMaker.Receive(ConstData());
    for (std::size_t at = 0; at < input.size(); at += piece)
        lineMaker.Receive(ConstData(input.data() + at, std::min(piece, input.size() - at)));
    lineMaker.ReceiveEnd();
    return recorder.record;
}

}  // namespace

TEST(MessageMaker, HeadersAndBodyInEveryChunking) {
    std::string const name47(47, 'N');
    std::string const name48(48, 'M');
    struct Case {
        std::string input;
        std::string record;
    } const cases[] = {
        {"Content-Type: text\r\n\r\nbody", "S0 F0 content-type='text'/18 B22(22)'body'e26 E26"},
        // Folded lines: the break and the leading white space become one blank.
        {"X: a\r\n b\r\n\r\n", "S0 F0 x='a b'/8 B12(12)e12 E12"},
        {"X:a\tb \r\n\t \tc\r\n\r\n", "S0 F0 x='a\tb  c'/12 B16(16)e16 E16"},
        // A line without ":" starts no field, and its text goes nowhere.
        {"junk\r\n more junk\r\nA: 1\n\n", "S0 F18 a='1'/22 B24(24)e24 E24"},
        // A name of 47 bytes is taken; one of 48 or more is dropped with its text.
        {name47 + ": v\r\n" + name48 + ": w\r\n x\r\n\r\n",
         "S0 F0 " + std::string(47, 'n') + "='v'/50 B111(111)e111 E111"},
        {std::string(200, 'L') + ": w\r\nA: 1\r\n\r\n", "S0 F205 a='1'/209 B213(213)e213 E213"},
        // Without an empty line the body is still reported, empty.
        {"A: 1\r\nB: 2", "S0 F0 a='1'/4 F6 b='2'/10 B10(10)e10 E10"},
        // An empty first line makes a message without headers.
        {"\r\nX: y\r\n", "S0 B2(2)'X: y'[6,8]e8 E8"},
        {"", "S0 B0(0)e0 E0"},
        {"Subject: a:b\r\n\r\n", "S0 F0 subject='a:b'/12 B16(16)e16 E16"},
        {"A: 1\n\nx\n\ny", "S0 F0 a='1'/4 B6(6)'x'[7,8][8,9]'y'e10 E10"},
        {"A:\r\n\r\n", "S0 F0 a=''/2 B6(6)e6 E6"},
        {" x\r\nA: 1\r\n\r\n", "S0 F4 a='1'/8 B12(12)e12 E12"},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(MessageRecord(c.input, c.input.size() + 1), c.record) << c.input;
        EXPECT_EQ(MessageRecord(c.input, 1), c.record) << c.input;
    }
}
