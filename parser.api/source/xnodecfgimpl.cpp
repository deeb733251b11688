#include "xnodecfgimpl.h"

#include "nodekinds.h"

#include <algorithm>
#include <cwctype>

#include "ioutils/Numbers.h"
#include "tableobj/XmlEscape.h"

namespace kaz::kazparser {

XNodeCfgImpl::XNodeCfgImpl(INodeCfg* parent) : NodeCollection(parent) {}

XNodeCfgImpl::XNodeCfgImpl(const ElementStart& element, INodeCfg* parent)
    : NodeCollection(parent), name_(element.name), attributes_(readAttributes(element)) {}

const std::wstring& XNodeCfgImpl::getName() const {
    const std::wstring& defaultName = kinds::tag(INodeCfg::XNode);
    return name_.empty() ? defaultName : name_;
}

INodeCfg* XNodeCfgImpl::clone() const {
    return new XNodeCfgImpl(*this);
}

bool XNodeCfgImpl::writeXml(IXmlWriter& out) const {
    const auto addAttributes = [this](StartTag& tag) {
        for (const auto& [name, value] : attributes_) {
            const std::wstring_view protectedValue = value;
            tag.attribute(name, [protectedValue](std::wstring& text) {
                tableobj::appendEscapedAttribute(text, protectedValue);
            });
        }
    };
    return kazparser::writeElement(out, getName(), addAttributes, [this](IXmlWriter& to) {
        if (!text_.empty())
            tableobj::buildPiece(
                to, [this](std::wstring& text) { tableobj::appendEscapedText(text, text_); });
        writeChildren(to);
    });
}

void XNodeCfgImpl::endOfContent() {
    const bool blank = std::all_of(text_.begin(), text_.end(),
                                   [](wchar_t c) { return std::iswspace(static_cast<wint_t>(c)); });
    if (blank && getCount() > 0) text_.clear();
}

unsigned int XNodeCfgImpl::getAttributeCount() const {
    return static_cast<unsigned int>(attributes_.size());
}

void XNodeCfgImpl::checkAttributeIndex(unsigned int index, const wchar_t* method) const {
    if (index >= attributes_.size()) errors::indexOutOfRange(index, KAZ_HERE(kClassName, method));
}

AttributeList::const_iterator XNodeCfgImpl::findAttribute(const std::wstring& name) const {
    return std::find_if(attributes_.begin(), attributes_.end(),
                        [&](const auto& attribute) { return attribute.first == name; });
}

const std::wstring& XNodeCfgImpl::getAttributeName(unsigned int index) const {
    checkAttributeIndex(index, L"getAttributeName");
    return attributes_[index].first;
}

void XNodeCfgImpl::setAttributeName(unsigned int index, const std::wstring& name) {
    checkAttributeIndex(index, L"setAttributeName");
    attributes_[index].first = name;
}

const std::wstring& XNodeCfgImpl::getAttribute(unsigned int index) const {
    checkAttributeIndex(index, L"getAttribute");
    return attributes_[index].second;
}

const std::wstring& XNodeCfgImpl::getAttribute(const std::wstring& name) const {
    const auto found = findAttribute(name);
    if (found == attributes_.end())
        errors::notChildName(name, KAZ_HERE(kClassName, L"getAttribute"));
    return found->second;
}

void XNodeCfgImpl::setAttribute(unsigned int index, const std::wstring& value) {
    checkAttributeIndex(index, L"setAttribute");
    attributes_[index].second = value;
}

void XNodeCfgImpl::setAttribute(const std::wstring& name, const std::wstring& value) {
    const auto found = findAttribute(name);
    if (found == attributes_.end()) {
        attributes_.emplace_back(name, value);
    } else {
        attributes_[static_cast<std::size_t>(found - attributes_.begin())].second = value;
    }
}

bool XNodeCfgImpl::hasAttribute(const std::wstring& name) const {
    return findAttribute(name) != attributes_.end();
}

const std::wstring& XNodeCfgImpl::childText(const std::wstring& childName) const {
    const unsigned int position = lastPositionOf(childName);
    if (position == kNoPosition)
        errors::notChildName(childName, KAZ_HERE(kClassName, L"getChildValue"));
    const auto* child = dynamic_cast<const IXNodeCfg*>(items()[position]);
    if (child == nullptr) unreadable(childName, L"", L"a generic element with a value");
    return child->getText();
}

void XNodeCfgImpl::unreadable(const std::wstring& childName, const std::wstring& text,
                              const wchar_t* what) const {
    errors::parsing(L"Syntax error at : '" + text + L"' of <" + childName + L"> is not " + what,
                    KAZ_HERE(kClassName, L"getChildValue"));
}

void XNodeCfgImpl::getChildValue(const std::wstring& childName, std::wstring& value) const {
    value = childText(childName);
}

void XNodeCfgImpl::getChildValue(const std::wstring& childName, int& value) const {
    const std::wstring& text = childText(childName);
    if (!ioutils::readInt(text, value)) unreadable(childName, text, L"an integer");
}

void XNodeCfgImpl::getChildValue(const std::wstring& childName, double& value) const {
    const std::wstring& text = childText(childName);
    if (!ioutils::readDouble(text, value)) unreadable(childName, text, L"a number");
}

void XNodeCfgImpl::getChildValue(const std::wstring& childName, bool& value) const {
    const std::wstring& text = childText(childName);
    if (text == L"true" || text == L"1") {
        value = true;
    } else if (text == L"false" || text == L"0") {
        value = false;
    } else {
        unreadable(childName, text, L"a boolean");
    }
}

}  // namespace kaz::kazparser
