#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

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

// Objects of several sizes, filled with a mark that shows if another
// object's room overlapped theirs.
struct Sized : MemObject {
    virtual bool intact() const = 0;
};
template <std::size_t N>
struct Wide : Sized {
    explicit Wide(unsigned char mark) : mark(mark) {
        std::fill(std::begin(room), std::end(room), mark);
    }
    bool intact() const override {
        return std::all_of(std::begin(room), std::end(room),
                           [&](unsigned char c) { return c == mark; });
    }
    unsigned char mark;
    unsigned char room[N];
};

std::vector<std::unique_ptr<Sized>> makeMixed(int count) {
    std::vector<std::unique_ptr<Sized>> made;
    for (int i = 0; i < count; ++i) {
        const auto mark = static_cast<unsigned char>(i);
        if (i % 1000 == 999)
            made.emplace_back(new Wide<100000>(mark));  // larger than any shared chunk
        else if (i % 2 == 0)
            made.emplace_back(new Wide<24>(mark));
        else
            made.emplace_back(new Wide<200>(mark));
    }
    return made;
}

TEST(MemObject, ObjectsMadeOnOneThreadAreDeletedOnAnother) {
    const long live = MemObject::liveCount();
    auto mine = makeMixed(5000);
    std::vector<std::unique_ptr<Sized>> theirs;
    std::thread([&] {
        theirs = makeMixed(5000);
        for (std::size_t i = 0; i < mine.size(); i += 2) mine[i].reset();
    }).join();
    for (const auto& made : {&mine, &theirs})
        for (const auto& object : *made) EXPECT_TRUE(object == nullptr || object->intact());
    std::thread([&] { mine.clear(); }).join();
    EXPECT_EQ(MemObject::liveCount(), live + 5000);
    theirs.clear();
    EXPECT_EQ(MemObject::liveCount(), live);
}

struct Throwing : MemObject {
    Throwing() { throw std::runtime_error("refused"); }
};

TEST(MemObject, AConstructorThatThrowsGivesItsRoomBack) {
    const long live = MemObject::liveCount();
    EXPECT_THROW(new Throwing, std::runtime_error);
    EXPECT_THROW(new (std::nothrow) Throwing, std::runtime_error);
    EXPECT_EQ(MemObject::liveCount(), live);
}

}  // namespace
