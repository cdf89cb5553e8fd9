#include "session/ActionRequestStore.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session/SessionErrors.h"
#include "testing/TestText.h"
#include "time/TimeText.h"

namespace {

// 2000-03-04 07:05:09 UTC, a whole second as every deadline of a document is.
Instant const deadline(952153509000000);

ActionRequest Forced(unsigned long long id, Instant at, TimeZone zone, bool forceRun = true) {
    ActionRequest action;
    action.m_id = id;
    action.m_forceRun = forceRun;
    action.m_deadline = TimeObject(at, zone);
    return action;
}

std::string DeadlineIn(ActionRequestStore const& store, unsigned long long id) {
    NullOr<TimeObject> const& d = store.GetAction(id).m_deadline;
    return d.IsNull() ? "null" : TimeToText(*d).CString();
}

}  // namespace

// A forced deadline never looks closer than five minutes away: the limit is now plus
// 300000000 microseconds, and only a deadline strictly before it is replaced, by the limit in
// the zone of offset 0. The zone shows which of the two happened.
TEST(ActionRequestStore, FiveMinuteFloorForForcedDeadlines) {
    TimeInterval const fiveMinutes(300000000);
    TimeZone const plusOne(3600);
    struct Case {
        char const* what;
        ActionRequest action;
        Instant now;
        char const* expected;
    } const cases[] = {
        {"exactly at the limit", Forced(1, deadline, plusOne), deadline - fiveMinutes,
         "Sat, 04 Mar 2000 08:05:09 +0100"},
        {"one microsecond before the limit", Forced(1, deadline, plusOne),
         deadline - fiveMinutes + TimeInterval(1), "Sat, 04 Mar 2000 07:05:09 +0000"},
        {"long past", Forced(1, deadline, plusOne), deadline + TimeInterval(86400000000),
         "Sun, 05 Mar 2000 07:10:09 +0000"},
        {"past but not forced", Forced(1, deadline, plusOne, false),
         deadline + TimeInterval(86400000000), "Sat, 04 Mar 2000 08:05:09 +0100"},
        {"far ahead", Forced(1, deadline, plusOne), deadline - TimeInterval(86400000000),
         "Sat, 04 Mar 2000 08:05:09 +0100"},
    };
    for (auto const& c : cases) {
        ActionRequestStore store;
        store.UpdateActions({c.action}, c.now);
        EXPECT_EQ(DeadlineIn(store, 1), c.expected) << c.what;
    }
    ActionRequest noDeadline = Forced(2, deadline, plusOne);
    noDeadline.m_deadline = NullOr<TimeObject>();
    ActionRequestStore store;
    store.UpdateActions({noDeadline}, deadline);
    EXPECT_EQ(DeadlineIn(store, 2), "null");
}

TEST(ActionRequestStore, UpdateReplacesWholeEntriesAndRemovesNothing) {
    ActionRequestStore store;
    EXPECT_FALSE(store.HasAction(0));
    EXPECT_THROW(store.GetAction(0), NoSuchActionRequestID);
    EXPECT_THROW(store.RemoveAction(0), NoSuchActionRequestID);

    ActionRequest first = Forced(7, deadline, TimeZone(0), false);
    first.SetTitle(U8("first"));
    first.m_cancellable = true;
    first.m_preActionMessage = SharedUString<UTF8>(MakeUString(U8("sure?")));
    ActionRequest second;
    second.m_id = 7;
    second.SetTitle(U8("second"));
    ActionRequest other;
    other.m_id = 3;
    store.UpdateActions({first, other}, deadline);
    store.UpdateActions({}, deadline);
    EXPECT_EQ(Str(store.GetAction(7).m_title), "first");

    store.UpdateActions({first, second}, deadline);
    ActionRequest const& entry = store.GetAction(7);
    EXPECT_EQ(Str(entry.m_title), "second");
    EXPECT_FALSE(entry.m_cancellable) << "a field of the earlier entry survived";
    EXPECT_TRUE(entry.m_preActionMessage.IsNull());
    EXPECT_TRUE(entry.m_deadline.IsNull());
    EXPECT_TRUE(store.HasAction(3)) << "an ID missing from the list went";

    store.RemoveAction(3);
    EXPECT_FALSE(store.HasAction(3));
    EXPECT_THROW(store.RemoveAction(3), NoSuchActionRequestID);
}

TEST(ActionRequest, DeadlineIsTheInstantOfTheStoredReading) {
    ActionRequest action;
    EXPECT_TRUE(action.Deadline().IsNull());
    action.m_deadline = TimeObject(deadline, TimeZone(-19800));
    ASSERT_FALSE(action.Deadline().IsNull());
    EXPECT_EQ(action.Deadline()->Microseconds(), deadline.Microseconds());
}
