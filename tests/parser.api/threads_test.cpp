// Parses, clones and writes of different texts on several threads at once
// give what they give one after another. CI also runs this program under
// ThreadSanitizer.

#include <gtest/gtest.h>

#include <barrier>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <vector>

#include "ioutils/IOUtils.h"
#include "kazparser.h"

namespace {

using kaz::kazparser::INodeCfg;
using kaz::kazparser::KAZConfigFactory;
namespace fs = std::filesystem;

struct Outcome {
    std::wstring written;
    std::wstring cloneWritten;
    std::wstring genericWritten;
    std::wstring names;  // every node's getName(), depth first

    bool operator==(const Outcome&) const = default;
};

void collectNames(const INodeCfg& node, std::wstring& names) {
    names += node.getName() + L'/';
    for (unsigned int i = 0; i < node.getChildCount(); ++i) collectNames(*node.getChild(i), names);
}

Outcome work(const std::wstring& text) {
    Outcome outcome;
    std::unique_ptr<INodeCfg> root(KAZConfigFactory::createNodeCfg(&text, nullptr));
    std::unique_ptr<INodeCfg> copy(root->clone());
    std::unique_ptr<INodeCfg> generic(KAZConfigFactory::createXNodeCfg(&text, nullptr));
    outcome.written = root->toXml();
    outcome.cloneWritten = copy->toXml();
    outcome.genericWritten = generic->toXml();
    collectNames(*root, outcome.names);
    return outcome;
}

std::vector<std::wstring> exampleTexts() {
    const char* root = std::getenv("KAZ_TEST_DATA");
    const fs::path examples = (root != nullptr ? fs::path(root) : fs::current_path()) / "examples";
    std::vector<std::wstring> texts;
    for (const auto& entry : fs::recursive_directory_iterator(examples))
        if (entry.path().extension() == ".xml")
            texts.push_back(
                ioutils::IOUtilsFactory::createIOUtils()->readTextFile(entry.path().wstring()));
    return texts;
}

TEST(ThreadsTest, TextsReadOnSeveralThreadsAtOnceGiveWhatTheyGiveInTurn) {
    const std::vector<std::wstring> texts = exampleTexts();
    ASSERT_GE(texts.size(), 2u);
    std::vector<Outcome> inTurn;
    for (const std::wstring& text : texts) inTurn.push_back(work(text));

    constexpr std::size_t kThreads = 4;
    constexpr int kRounds = 8;
    std::vector<std::vector<Outcome>> atOnce(kThreads);
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] {
            for (int round = 0; round < kRounds; ++round)
                atOnce[t].push_back(work(texts[(t + round) % texts.size()]));
        });
    for (std::thread& thread : threads) thread.join();

    for (std::size_t t = 0; t < kThreads; ++t)
        for (int round = 0; round < kRounds; ++round)
            EXPECT_TRUE(atOnce[t][round] == inTurn[(t + round) % texts.size()])
                << "thread " << t << ", round " << round;
}

// Nodes share the memory chunks of the thread that made them; a chunk goes
// when its last node is deleted, whichever thread deletes it, even while
// its maker still fills it.
TEST(ThreadsTest, TreesMadeOnOneThreadAreDeletedOnAnotherWhileItMakesMore) {
    const std::vector<std::wstring> texts = exampleTexts();
    const long live = MemObject::liveCount();
    constexpr std::size_t kThreads = 4;
    using Trees = std::vector<std::unique_ptr<INodeCfg>>;
    auto makeAll = [&](Trees& trees) {
        for (const std::wstring& text : texts)
            trees.emplace_back(KAZConfigFactory::createNodeCfg(&text, nullptr));
    };
    std::vector<Trees> first(kThreads), second(kThreads);
    std::barrier allMade(static_cast<std::ptrdiff_t>(kThreads));
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] {
            makeAll(first[t]);
            allMade.arrive_and_wait();
            first[(t + 1) % kThreads].clear();
            makeAll(second[t]);
        });
    for (std::thread& thread : threads) thread.join();
    for (const Trees& trees : second)
        for (const auto& tree : trees) EXPECT_NE(tree, nullptr);
    second.clear();
    EXPECT_EQ(MemObject::liveCount(), live);
}

}  // namespace
