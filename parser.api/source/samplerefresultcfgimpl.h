#pragma once

#include <string>

#include "contentsink.h"
#include "kazparser/ISampleRefResultCfg.h"
#include "kazxml/SAX.h"
#include "sampleresultnode.h"

namespace kaz::kazparser {

// "SampleRefResult": a sample entry naming data kept elsewhere. It reads
// "name", "desc" and "refData"; character data of its element, when it is
// not whitespace only, is the reference instead of the attribute.
class SampleRefResultCfgImpl final
    : public SampleResultNode<ISampleRefResultCfg, SampleRefResultCfgImpl>,
      public ContentSink {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::SampleRefResultCfgImpl";
    static constexpr NodeType kNodeType = SampleRefResult;

    explicit SampleRefResultCfgImpl(INodeCfg* parent) : SampleResultNode(parent) {}
    SampleRefResultCfgImpl(const ElementStart& element, INodeCfg* parent);

    INodeCfg* clone() const override { return new SampleRefResultCfgImpl(*this); }
    INodeCfg* getChild(unsigned int index) const override;
    unsigned int getChildCount() const override { return 0; }
    void deleteChildren() override {}
    bool setChild(INodeCfg* child) override;

    const std::wstring& getRefData() const override { return refData_; }
    void setRefData(const std::wstring& refData) override { refData_ = refData; }
    void appendText(const std::wstring& text) override;

    void addAttributes(StartTag& tag) const { tag.text(L"refData", refData_); }

private:
    // The text read so far is not copied.
    SampleRefResultCfgImpl(const SampleRefResultCfgImpl& other)
        : SampleResultNode(other), refData_(other.refData_) {}

    std::wstring refData_;
    // The element's character data so far, whole, as the reader delivers it.
    std::wstring text_;
};

}  // namespace kaz::kazparser
