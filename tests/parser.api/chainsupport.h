#pragma once

#include <string>

#include "testsupport.h"

namespace kaztest {

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
