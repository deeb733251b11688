#include <gtest/gtest.h>

#include "memobject/MemObject.h"

namespace {

struct Base : virtual MemObject {
    int value = 1;
};
struct Derived : Base {
    double more[4] = {};
};

TEST(MemObject, CountsLiveObjectsThroughAnyBase) {
    const long live = MemObject::liveCount();
    Base* a = new Derived;
    MemObject* b = new Base;
    EXPECT_EQ(MemObject::liveCount(), live + 2);
    delete a;
    delete b;
    EXPECT_EQ(MemObject::liveCount(), live);
}

TEST(MemObject, FailureModeRefusesAllocationsAfterTheBudget) {
    const long live = MemObject::liveCount();
    MemObject::failAfter(1);
    Base* first = new Base;
    EXPECT_THROW(new Base, std::bad_alloc);
    EXPECT_EQ(new (std::nothrow) Base, nullptr);
    MemObject::failAfter(-1);
    Base* again = new Base;
    delete first;
    delete again;
    EXPECT_EQ(MemObject::liveCount(), live);
}

}  // namespace
