#pragma once

#include <map>
#include <string>

#include "kazparser/ISampleResultsCfg.h"
#include "kazxml/SAX.h"
#include "nodecollection.h"
#include "saxattributes.h"

namespace kaz::kazparser {

// "SampleResults": a named list of sample entries. The name index maps each
// entry's sample name to the last entry of that name in list order, as the
// names stood when the list last changed.
class SampleResultsCfgImpl final
    : public NodeCollection<ISampleResultsCfg, ISampleResultCfg, SampleResultsCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::SampleResultsCfgImpl";

    using NodeCollection::operator[];

    explicit SampleResultsCfgImpl(INodeCfg* parent) : NodeCollection(parent) {}
    // Reads the list's "name".
    SampleResultsCfgImpl(const ElementStart& element, INodeCfg* parent);

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new SampleResultsCfgImpl(*this); }
    NodeType getNodeType() const override { return SampleResults; }
    bool writeXml(IXmlWriter& out) const override;

    unsigned int append(INodeCfg* item) override;
    unsigned int insert(INodeCfg* item, unsigned int index) override;
    INodeCfg* replace(INodeCfg* item, unsigned int index) override;
    INodeCfg* remove(unsigned int index) override;
    void deleteChildren() override;

    bool hasSampleResult(const std::wstring& name) const override;
    ISampleResultCfg* operator[](const std::wstring& name) const override;

private:
    friend NodeCollection;  // asks for freshIndex()

    SampleResultsCfgImpl(const SampleResultsCfgImpl& other);

    std::map<std::wstring, ISampleResultCfg*> freshIndex() const;

    std::wstring name_;
    std::map<std::wstring, ISampleResultCfg*> index_;
};

}  // namespace kaz::kazparser
