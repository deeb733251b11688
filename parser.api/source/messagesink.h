#pragma once

#include <string>

#include "kazparser/KAZConfigFactory.h"

namespace kaz::kazparser {

// Shows a message through the installed handler.
void showMessage(const std::wstring& text, const std::wstring& caption);
KAZConfigFactory::MessageHandler installMessageHandler(KAZConfigFactory::MessageHandler handler);

}  // namespace kaz::kazparser
