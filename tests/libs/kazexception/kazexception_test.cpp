#include <gtest/gtest.h>

#include "kazexception/KAZExceptionFactory.h"
#include "memobject/MemObject.h"

namespace {

using kazexception::IKAZException;
using kazexception::KAZExceptionFactory;

// Each kind keeps its texts and owns the exception it wraps; release frees
// the whole chain, however long.
TEST(KAZException, FactoryMakesEachKindAndReleaseFreesTheWholeChain) {
    const long live = MemObject::liveCount();
    const std::pair<IKAZException* (*)(const std::wstring&, const std::wstring&, IKAZException*),
                    IKAZException::Kind>
        kinds[] = {{KAZExceptionFactory::createOutOfRangeException, IKAZException::OutOfRange},
                   {KAZExceptionFactory::createInvalidDataException, IKAZException::InvalidData},
                   {KAZExceptionFactory::createParsingException, IKAZException::Parsing}};
    IKAZException* e = nullptr;
    for (const auto& [create, kind] : kinds) {
        IKAZException* inner = e;
        e = create(L"message", L"context", inner);
        EXPECT_EQ(e->getKind(), kind);
        EXPECT_EQ(e->getMessage(), L"message");
        EXPECT_EQ(e->getContext(), L"context");
        EXPECT_EQ(e->getInnerException(), inner);
    }
    for (int i = 0; i < 100000; ++i)  // long chains must not exhaust the stack
        e = KAZExceptionFactory::createParsingException(L"level", L"", e);
    EXPECT_EQ(MemObject::liveCount(), live + 100003);
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
