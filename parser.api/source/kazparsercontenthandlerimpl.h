#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kazparser/IFeatureCfg.h"
#include "kazparser/INodeCfg.h"
#include "kazsaxattributesimpl.h"
#include "markupcapture.h"
#include "nodestackhandler.h"
#include "tableobj/IElement.h"

namespace kaz::kazparser {

// Builds a configuration tree from the reader's events: picks each
// element's node kind by its name, by the kind expected for the root, or
// by its parent's kind, and attaches every finished node to its parent.
// Problems that do not stop the reader are collected in an error text.
class KAZParserContentHandlerImpl final : public NodeStackHandler {
public:
    explicit KAZParserContentHandlerImpl(INodeCfg* parent);
    ~KAZParserContentHandlerImpl() override;

    // The kind to create for the first element.
    void expectKind(INodeCfg::NodeType kind) { expectedKind_ = kind; }

    long endDocument() override;
    long startElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                      int localNameLength, const wchar_t* qName, int qNameLength,
                      kaz::xml::ISAXAttributes* attributes) override;
    long endElement(const wchar_t* uri, int uriLength, const wchar_t* localName,
                    int localNameLength, const wchar_t* qName, int qNameLength) override;
    long characters(const wchar_t* chars, int length) override;

    bool hasError() const { return errorFlag_; }
    const std::wstring& errorText() const { return errorText_; }

private:
    INodeCfg* createNode(const std::wstring& name, KAZSAXAttributesImpl& attributes);
    void attachToParent(INodeCfg* child, const std::wstring& name);
    void addError(const std::wstring& text);
    // Replaces every "[Kestrelon.RootDirectory]" by the root directory.
    void replaceRootDirectory(std::wstring& text);
    void freeRefused();
    // Hands the text collected since the last element event to where the
    // open element keeps it.
    void flushText();
    // At the end of a data value's or reference's element: hands the
    // captured content to its node (the top node).
    void finishCapture(const std::wstring& name);
    // The value of the data element `name` from the captured content.
    tableobj::IElement* readDataValue(const std::wstring& name) const;

    bool errorFlag_ = false;
    std::wstring errorText_;
    std::optional<INodeCfg::NodeType> expectedKind_;
    // Children their parent did not take; freed at the end of the document.
    std::vector<INodeCfg*> refused_;
    // For each open element, whether its start made a node.
    std::vector<bool> madeNode_;
    std::optional<std::wstring> rootDirectory_;
    // Data mode: a data value's or reference's element is open, and its
    // content is captured instead of making nodes.
    bool dataMode_ = false;
    // Raw mode: the feature whose element is open (the top node); all its
    // content, nested markup included, is appended to its value as text.
    IFeatureCfg* rawFeature_ = nullptr;
    MarkupCapture captured_;
    std::wstring pendingText_;
};

}  // namespace kaz::kazparser
