#pragma once

#include <string>

namespace kaz::kazparser {

// Node kinds whose element text is their content receive the character
// data of their element through this, piece by piece, in document order.
class CharacterDataReceiver {
public:
    virtual void appendCharacters(const std::wstring& text) = 0;

protected:
    ~CharacterDataReceiver() = default;
};

}  // namespace kaz::kazparser
