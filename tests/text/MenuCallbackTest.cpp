// Menu callbacks: when a callback is empty, what a call reaches (member with
// virtual dispatch, const member, free function, nothing), the point passed by
// reference, and copies keeping their binding.
#include "menus/CBFunctor2.h"
#include "menus/CBFunctor2wRet.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

struct Point { int x; };

class Target {
public:
    virtual ~Target() = default;
    virtual int Advise(int id, Point& p) { return ++p.x, 10 + id; }
    int Peek(int, Point&) const { return 7; }
    void Act(int id, Point&) { lastID = id; }
    int lastID = 0;
};

class Overriding : public Target {
public:
    int Advise(int id, Point&) override { return 20 + id; }
};

int FreeAdvise(int id, Point& p)
{
    return p.x = -1, 30 + id;
}

typedef CBFunctor2wRet<int, Point&, int> Advisor;
typedef CBFunctor2<int, Point&> Action;
typedef int (Target::*TargetAdvise)(int, Point&);

// Values with no heap behind them: copying is copying bytes.
static_assert(std::is_trivially_copyable_v<Advisor> && std::is_trivially_copyable_v<Action>);

Target g_target;
Overriding g_overriding;

// result and pointX: called with 2 and a point at x = 5.
struct CallRow { const char* name; Advisor callback; bool empty; int result, pointX; };

const CallRow kCalls[] = {
    {"default constructed", Advisor(), true, 0, 5},
    {"null object and null member", Advisor(static_cast<Target*>(nullptr), TargetAdvise(nullptr)), true, 0, 5},
    {"null free function", Advisor(Advisor::FreeFunction(nullptr)), true, 0, 5},
    {"object without a member", Advisor(&g_target, TargetAdvise(nullptr)), false, 0, 5},
    {"member", Advisor(&g_target, &Target::Advise), false, 12, 6},
    {"virtual member reaches the override", Advisor(static_cast<Target*>(&g_overriding), &Target::Advise), false, 22,
     5},
    {"const member", Advisor(&g_target, &Target::Peek), false, 7, 5},
    {"free function", Advisor(&FreeAdvise), false, 32, -1},
};

TEST(MenuCallback, EmptinessAndWhatACallReaches)
{
    for (const CallRow& row : kCalls) {
        SCOPED_TRACE(row.name);
        const Advisor copy = row.callback;
        Point point{5};
        EXPECT_EQ(copy.IsEmpty(), row.empty);
        EXPECT_EQ(copy(2, point), row.result);
        EXPECT_EQ(point.x, row.pointX);
    }
}

TEST(MenuCallback, AssignmentReplacesTheBindingOfThatCopyOnly)
{
    Target first, second;
    Action action(&first, &Target::Act);
    const Action copy = action;
    action = Action(&second, &Target::Act);
    Point point{0};
    copy(1, point);
    action(2, point);
    EXPECT_EQ(first.lastID, 1);
    EXPECT_EQ(second.lastID, 2);
}

}  // namespace
