#pragma once

#include <string>

#include "languagemanager.h"

namespace kaz::kazparser {

// A display text follows the working language: the text of `id` replaces
// `display` when the ID is set and resolves; otherwise `display` keeps the
// literal text it was given.
inline void resolveDisplayText(const std::wstring& id, std::wstring& display) {
    if (!id.empty()) LanguageManager::instance().lookup(id, display);
}

}  // namespace kaz::kazparser
