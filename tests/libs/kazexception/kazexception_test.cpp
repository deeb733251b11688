#include <gtest/gtest.h>

#include "kazexception/KAZExceptionFactory.h"
#include "memobject/MemObject.h"

namespace {

using kazexception::IKAZException;
using kazexception::KAZExceptionFactory;

TEST(KAZException, FactoryMakesEachKindWithItsTexts) {
    struct Case {
        IKAZException* (*create)(const std::wstring&, const std::wstring&, IKAZException*);
        IKAZException::Kind kind;
    };
    const Case cases[] = {
        {KAZExceptionFactory::createOutOfRangeException, IKAZException::OutOfRange},
        {KAZExceptionFactory::createInvalidDataException, IKAZException::InvalidData},
        {KAZExceptionFactory::createParsingException, IKAZException::Parsing}};
    for (const Case& c : cases) {
        IKAZException* e = c.create(L"message", L"context", nullptr);
        EXPECT_EQ(e->getKind(), c.kind);
        EXPECT_EQ(e->getMessage(), L"message");
        EXPECT_EQ(e->getContext(), L"context");
        EXPECT_EQ(e->getInnerException(), nullptr);
        e->release();
    }
}

TEST(KAZException, ReleaseFreesTheWholeInnerChain) {
    const long live = MemObject::liveCount();
    IKAZException* e = nullptr;
    for (int i = 0; i < 100000; ++i)  // long chains must not exhaust the stack
        e = KAZExceptionFactory::createParsingException(L"level", L"", e);
    EXPECT_EQ(MemObject::liveCount(), live + 100000);
    EXPECT_EQ(e->getInnerException()->getMessage(), L"level");
    e->release();
    EXPECT_EQ(MemObject::liveCount(), live);
}

TEST(KAZException, FailedCreationFreesTheInnerException) {
    const long live = MemObject::liveCount();
    IKAZException* inner = KAZExceptionFactory::createOutOfRangeException(L"inner", L"", nullptr);
    MemObject::failAfter(0);
    EXPECT_THROW(KAZExceptionFactory::createParsingException(L"outer", L"", inner), std::bad_alloc);
    MemObject::failAfter(-1);
    EXPECT_EQ(MemObject::liveCount(), live);
}

TEST(KAZException, ContextNamesFileLineAndMethod) {
    const int line = __LINE__ + 1;
    const std::wstring context = KAZ_CONTEXT(L"kaz::kazparser::Node::getChild");
    EXPECT_EQ(context, L"\t[file] " + std::wstring(__FILE__, __FILE__ + sizeof(__FILE__) - 1) +
                           L"\n\t[line] " + std::to_wstring(line) +
                           L"\n\t[method] kaz::kazparser::Node::getChild");
}

}  // namespace
