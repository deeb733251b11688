#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kazparser.h"

namespace kaztest {

using namespace kaz::kazparser;
using kazexception::IKAZException;

// Fails the test when it leaves objects alive that it did not start with.
class LeakCheckedTest : public ::testing::Test {
protected:
    void SetUp() override { liveAtStart_ = MemObject::liveCount(); }
    void TearDown() override {
        MemObject::failAfter(-1);
        EXPECT_EQ(MemObject::liveCount(), liveAtStart_) << "objects leaked";
    }

private:
    long liveAtStart_ = 0;
};

// File references are taken under the examples folder; no working language
// is left behind.
class ExamplesRootTest : public LeakCheckedTest {
protected:
    void SetUp() override;
    void TearDown() override;
};

// The source tree, where the examples and the conformance suite are found.
std::filesystem::path sourceDirectory();
inline std::filesystem::path examplesDirectory() {
    return sourceDirectory() / "examples";
}
std::wstring readFile(const std::filesystem::path& path);

// Deletes a node at the end of scope.
struct NodeDeleter {
    void operator()(INodeCfg* node) const { delete node; }
};
template <class T = INodeCfg>
using NodePtr = std::unique_ptr<T, NodeDeleter>;

// Collects the messages the library shows while it lives.
class MessageCapture {
public:
    MessageCapture();
    ~MessageCapture();
    // (caption, text) pairs in the order shown.
    const std::vector<std::pair<std::wstring, std::wstring>>& messages() const {
        return *messages_;
    }

private:
    std::shared_ptr<std::vector<std::pair<std::wstring, std::wstring>>> messages_;
    kaz::kazparser::KAZConfigFactory::MessageHandler previous_;
};

// What an IKAZException said, level by level (outermost first).
struct ExceptionLevel {
    IKAZException::Kind kind;
    std::wstring message;
    std::wstring context;
};

// Runs `action`, which must throw IKAZException*; answers its chain and
// releases it. An empty chain means nothing was thrown.
template <class Action>
std::vector<ExceptionLevel> thrownChain(Action&& action) {
    std::vector<ExceptionLevel> chain;
    try {
        action();
    } catch (IKAZException* e) {
        for (IKAZException* level = e; level != nullptr; level = level->getInnerException())
            chain.push_back({level->getKind(), level->getMessage(), level->getContext()});
        e->release();
    }
    return chain;
}

// Runs `action` with MemObject allocations failing after 0, 1, 2, ...
// successful ones, until it runs through; after each run no object may be
// left alive. Exceptions of the library that the action lets out are freed.
void expectNothingLeaksUnderAllocationFailures(const std::function<void()>& action);

// The method named by a context text ("...\n\t[method] <name>").
std::wstring methodOf(const std::wstring& context);

// Runs `action`, which must raise exactly one error of `kind` saying
// `message`, thrown in `method` (qualified below kaz::kazparser::).
template <class Action>
void expectError(Action&& action, IKAZException::Kind kind, const std::wstring& message,
                 const std::wstring& method) {
    const auto chain = thrownChain(std::forward<Action>(action));
    ASSERT_EQ(chain.size(), 1u) << "one error expected";
    EXPECT_EQ(chain[0].kind, kind);
    EXPECT_EQ(chain[0].message, message);
    EXPECT_EQ(methodOf(chain[0].context), L"kaz::kazparser::" + method);
}

}  // namespace kaztest
