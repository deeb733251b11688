#include "samplerefresultcfgimpl.h"

#include <algorithm>
#include <cwctype>

#include "nodeerrors.h"

namespace kaz::kazparser {

SampleRefResultCfgImpl::SampleRefResultCfgImpl(const ElementStart& element, INodeCfg* parent)
    : SampleResultNode(element, parent) {
    forEachAttribute(element, AttributeNaming::Qualified, [&](auto qName, auto value) {
        if (qName == L"refData") refData_ = value;
    });
}

INodeCfg* SampleRefResultCfgImpl::getChild(unsigned int index) const {
    errors::indexOutOfRange(index, KAZ_HERE(kClassName, L"getChild"));
}

bool SampleRefResultCfgImpl::setChild(INodeCfg*) {
    errors::invalidData(L"Do not use this method", KAZ_HERE(kClassName, L"setChild"));
}

// Indentation around an empty content must not overwrite the attribute.
void SampleRefResultCfgImpl::appendText(const std::wstring& text) {
    text_ += text;
    if (std::any_of(text_.begin(), text_.end(),
                    [](wchar_t c) { return std::iswspace(static_cast<wint_t>(c)) == 0; }))
        refData_ = text_;
}

}  // namespace kaz::kazparser
