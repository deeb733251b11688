#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "tableobj/Export.h"

namespace tableobj {

// Receives XML text in pieces, in document order. Nodes and table objects
// write themselves to it.
class TABLEOBJ_API IXmlWriter {
public:
    virtual ~IXmlWriter() = default;
    // Appends one piece of text; answers whether it was taken.
    virtual bool write(std::wstring piece) = 0;
    // A writer that appends every piece to a string may hand the string
    // out, so that large texts are appended in place instead of as pieces.
    virtual std::wstring* buffer() { return nullptr; }
};

// A writer that appends every piece to a string.
class TABLEOBJ_API StringXmlWriter final : public IXmlWriter {
public:
    explicit StringXmlWriter(std::wstring& target) : target_(target) {}
    bool write(std::wstring piece) override {
        target_ += piece;
        return true;
    }
    // A large text grows fourfold when little room is left: it is then
    // copied and first touched about half as much as when doubling. (Room
    // not yet written to takes no memory.)
    std::wstring* buffer() override {
        if (target_.capacity() >= kLarge && target_.capacity() - target_.size() < kLeastRoom)
            target_.reserve(4 * target_.capacity());
        return &target_;
    }

private:
    static constexpr std::size_t kLarge = 64 * 1024;
    static constexpr std::size_t kLeastRoom = 4096;
    std::wstring& target_;
};

// Hands `out` the piece that `build(std::wstring&)` appends: straight into
// the writer's buffer when it has one (always taken), else in a string of
// its own, so that the writer sees the same pieces either way.
template <class Build>
bool buildPiece(IXmlWriter& out, Build&& build) {
    if (std::wstring* buffer = out.buffer()) {
        build(*buffer);
        return true;
    }
    std::wstring piece;
    piece.reserve(64);  // most pieces are tags: one allocation, not one per doubling
    build(piece);
    return out.write(std::move(piece));
}

// Appends "</" name ">".
inline void appendEndTag(std::wstring& out, std::wstring_view name) {
    out.append(L"</").append(name) += L'>';
}

// Hands `out` `text` as one piece.
inline bool writePiece(IXmlWriter& out, std::wstring_view text) {
    return buildPiece(out, [text](std::wstring& piece) { piece += text; });
}

}  // namespace tableobj
