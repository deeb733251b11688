#pragma once

#include <string>

#include "tableobj/IElement.h"
#include "tableobj/INamed.h"
#include "tableobj/IXmlWriter.h"

namespace tableobj {

// Behaviour shared by every element implementing `Interface`.
template <class Interface>
class ElementBase : public Interface {
public:
    std::wstring toXml() const final {
        std::wstring text;
        StringXmlWriter out(text);
        this->writeXml(out);
        return text;
    }

protected:
    // `other` as this element's interface, or null when it is of another kind.
    static const Interface* sameKind(const IElement& other) {
        return dynamic_cast<const Interface*>(&other);
    }
};

// An element with a name and a description.
template <class Interface>
class NamedBase : public ElementBase<Interface> {
public:
    const std::wstring& getName() const override { return name_; }
    void setName(const std::wstring& name) override { name_ = name; }
    const std::wstring& getDesc() const override { return desc_; }
    void setDesc(const std::wstring& desc) override { desc_ = desc; }

protected:
    NamedBase(std::wstring name, std::wstring desc)
        : name_(std::move(name)), desc_(std::move(desc)) {}

    bool sameNames(const INamed& other) const {
        return name_ == other.getName() && desc_ == other.getDesc();
    }

private:
    std::wstring name_;
    std::wstring desc_;
};

}  // namespace tableobj
