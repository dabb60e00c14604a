// kvBase::SmartPtr: an object lives exactly as long as some pointer shares it,
// and dies once, through its virtual destructor.
#include "kvbase/SmartPtr.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace {

struct Item {
    static int live;
    Item() { ++live; }
    virtual ~Item() { --live; }
};
int Item::live = 0;

struct LabeledItem : Item {
    static int destroyed;
    ~LabeledItem() override { ++destroyed; }
};
int LabeledItem::destroyed = 0;

using Ptr = kvBase::SmartPtr<Item>;

// scenario answers the number of live items at its decisive point.
struct OwnershipRow { const char* name; std::function<int()> scenario; int expectedLive; };

const OwnershipRow kOwnership[] = {
    {"null pointer owns nothing", [] { Ptr p(nullptr); return Item::live + (p ? 10 : 0); }, 0},
    {"copy keeps the object after its original goes",
     [] { Ptr kept; { Ptr original(new Item); kept = original; } return Item::live; }, 1},
    {"last copy deletes", [] { Ptr a(new Item); { Ptr b(a); Ptr c = b; } a = nullptr; return Item::live; }, 0},
    {"reassigning releases the old object", [] { Ptr a(new Item); a = Ptr(new Item); return Item::live; }, 1},
    {"assigning to itself keeps the object",
     [] { Ptr a(new Item); Ptr& alias = a; a = alias; return Item::live + (a ? 0 : 10); }, 1},
    {"moved-from pointer gives up its share",
     [] { Ptr a(new Item); Ptr b(std::move(a)); b = nullptr; return Item::live + (a ? 10 : 0); }, 0},
    {"derived object dies through the base pointer",
     [] { Ptr a(kvBase::SmartPtr<LabeledItem>(new LabeledItem)); a = nullptr; return LabeledItem::destroyed; }, 1},
    {"full 16-bit count still deletes once",
     [] { Ptr a(new Item); std::vector<Ptr> copies(65534, a); a = nullptr; copies.resize(1); return Item::live; }, 1},
};

TEST(SmartPtr, Ownership)
{
    for (const OwnershipRow& row : kOwnership) {
        SCOPED_TRACE(row.name);
        Item::live = 0;
        LabeledItem::destroyed = 0;
        EXPECT_EQ(row.scenario(), row.expectedLive);
        EXPECT_EQ(Item::live, 0) << "every object dies once all pointers are gone";
    }
}

}  // namespace
