#include "session/ClientSender.h"

#include <gtest/gtest.h>
#include <time.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>

#include "session/ClientUIErrorMessage.h"
#include "session/DecisionDocuments.h"
#include "session/SendErrorToClient.h"
#include "session/SessionState.h"
#include "testing/TestText.h"

namespace {

std::vector<std::string> TakeWriteQueue() {
    FiFoQueue<UIMessage> batch;
    writeQ.ReadMessages(batch);
    std::vector<std::string> texts;
    while (!batch.IsEmpty()) texts.push_back(Str(batch.TakeFirst().m_text));
    return texts;
}

}  // namespace

// The report is queued twice, and the call returns only after the write side has taken the
// queue: the process may end right after it, and the report must have left by then.
TEST(ClientSender, ErrorReportGoesTwiceAndWaitsForTheWriteSide) {
    TakeWriteQueue();
    ClientUIErrorMessage report;
    report.m_code = ClientUIErrorMessage::NoFont;
    report.m_debugString = "noFont (<Misc>)";
    std::vector<std::string> taken;
    std::atomic<bool> queueTaken{false};
    std::thread writeSide([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(1500));
        taken = TakeWriteQueue();
        queueTaken = true;
    });
    time_t started = time(nullptr);
    SendErrorToClient(report);
    bool const returnedAfterTheQueueWasTaken = queueTaken;
    time_t const returned = time(nullptr);
    writeSide.join();
    EXPECT_TRUE(returnedAfterTheQueueWasTaken) << "returned while the report still waited";
    EXPECT_LE(returned - started, 10) << "kept waiting after the queue was taken";
    std::string document =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<ClientUIErrorMessage>\n"
        "\t\t<DebugString><![CDATA[noFont (<Misc>)]]></DebugString>\n"
        "\t\t<ErrorCode>1</ErrorCode>\n\t</ClientUIErrorMessage>\n</ClientToUI>";
    EXPECT_EQ(taken, (std::vector<std::string>{document, document}));
}

// The decision documents have the root "UIToClient"; the agent matches them byte for byte.
TEST(ClientSender, DecisionDocumentsAreExactToTheByte) {
    std::string const head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<UIToClient>\n";
    ActionTaken taken;
    taken.m_id = 1001;
    ActionTaken cancelled;
    cancelled.m_id = 18446744073709551615ull;
    cancelled.m_isCancel = true;
    RemindTime remindTime;
    remindTime.m_timeObject = TimeObject(Instant(952153509000000), TimeZone(0));
    RemindInterval remindInterval;
    remindInterval.m_timeInterval = TimeInterval(300000000);
    RemindInterval none;
    TakeWriteQueue();
    SendToClient(pipeWriter, taken);
    SendToClient(pipeWriter, cancelled);
    SendToClient(pipeWriter, remindTime);
    SendToClient(pipeWriter, remindInterval);
    SendToClient(pipeWriter, none);
    EXPECT_EQ(TakeWriteQueue(),
              (std::vector<std::string>{
                  head + "\t<ActionTaken>\n\t\t<IsCancel>false</IsCancel>\n"
                         "\t\t<IsOffer>false</IsOffer>\n\t\t<ID>1001</ID>\n\t</ActionTaken>\n"
                         "</UIToClient>",
                  head + "\t<ActionTaken>\n\t\t<IsCancel>true</IsCancel>\n"
                         "\t\t<IsOffer>false</IsOffer>\n\t\t<ID>18446744073709551615</ID>\n"
                         "\t</ActionTaken>\n</UIToClient>",
                  head + "\t<RemindTime>\n\t\t<TimeObject>Sat, 04 Mar 2000 07:05:09 +0000"
                         "</TimeObject>\n\t</RemindTime>\n</UIToClient>",
                  head + "\t<RemindInterval>\n\t\t<TimeInterval>PT5M</TimeInterval>\n"
                         "\t</RemindInterval>\n</UIToClient>",
                  head + "\t<RemindInterval>\n\t\t<TimeInterval>PT0S</TimeInterval>\n"
                         "\t</RemindInterval>\n</UIToClient>",
              }));
}

// With the agent's end gone nothing drains the queue; the report must not hold the exit up for
// minutes, whether the pipe died before the report or while it waited.
TEST(ClientSender, ErrorReportStopsWaitingOnceThePipeIsKilled) {
    struct Case {
        char const* name;
        int killAfterMs;  // negative: killed before the report
    };
    Case const cases[] = {{"killed before", -1}, {"killed while waiting", 1500}};
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        TakeWriteQueue();
        UIMessageQueue otherReadQ, otherWriteQ;
        UnixPipe pipe(otherReadQ, otherWriteQ);
        clientPipe = &pipe;
        if (c.killAfterMs < 0) pipe.Kill();
        std::thread killer([&] {
            if (c.killAfterMs < 0) return;
            std::this_thread::sleep_for(std::chrono::milliseconds(c.killAfterMs));
            pipe.Kill();
        });
        ClientUIErrorMessage report;
        report.m_code = ClientUIErrorMessage::NoFont;
        report.m_debugString = "noFont";
        time_t started = time(nullptr);
        SendErrorToClient(report);
        time_t waited = time(nullptr) - started;
        killer.join();
        clientPipe = nullptr;
        EXPECT_LE(waited, 1 + c.killAfterMs / 1000 + 5) << "kept waiting on a killed pipe";
        EXPECT_EQ(TakeWriteQueue().size(), 2u) << "the report is queued twice all the same";
    }
}
