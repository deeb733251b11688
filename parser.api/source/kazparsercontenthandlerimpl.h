#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kazexception/IKAZException.h"
#include "kazparser/INodeCfg.h"
#include "kazsaxattributesimpl.h"
#include "markupcapture.h"
#include "nodekinds.h"
#include "nodestackhandler.h"
#include "ownedlist.h"
#include "tableobj/IElement.h"

namespace kaz::kazparser {

// Builds a configuration tree from the reader's events: picks each
// element's node kind by its name, by the kind expected for the root, or
// by its parent's kind (the table of kinds), and attaches every finished
// node to its parent. Problems that do not stop the reader are collected
// in an error text.
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
    // What the builder does with the content of the innermost open element
    // that made a node: the content model of its kind.
    using Mode = kinds::Content;
    Mode mode() const { return static_cast<Mode>(topMode()); }
    // Raw, Markup and Value keep nested elements as content.
    bool capturing() const;
    // Markup and Value collect the content whole, to hand it over at the end.
    static bool collectsContent(Mode mode);

    // The name of the element being reported, in a buffer reused from
    // event to event.
    const std::wstring& nameOf(const wchar_t* qName, int length);
    // The kind of the element `name`, made with `parent`; null when it
    // makes no node.
    const kinds::Kind* chooseKind(const std::wstring& name, INodeCfg* parent);
    void openNode(const kinds::Kind& kind, const std::wstring& name,
                  KAZSAXAttributesImpl& attributes);
    // An element inside a capturing node's element.
    void captureStart(const std::wstring& name, KAZSAXAttributesImpl& attributes);
    void captureEnd(std::wstring_view name);
    void attachToParent(INodeCfg* child, std::wstring_view name);
    static bool takeSampleData(INodeCfg* parent, INodeCfg* child);
    void addError(const std::wstring& text);
    void addException(std::wstring_view name, kazexception::IKAZException* e);
    // Replaces every "[Kestrelon.RootDirectory]" by the root directory.
    void replaceRootDirectory(std::wstring& text);
    void replaceRootDirectory(KAZSAXAttributesImpl& attributes);
    // Hands the text collected since the last element event to where the
    // open element keeps it.
    void flushText();
    // At the end of a data value's or reference's element: hands the
    // captured content to its node (the top node).
    void finishCapture(std::wstring_view name);
    // The value of the data element `name` from the captured content.
    tableobj::IElement* readDataValue(std::wstring_view name) const;

    bool errorFlag_ = false;
    std::wstring errorText_;
    std::optional<INodeCfg::NodeType> expectedKind_;
    // Children their parent did not take; freed at the end of the document.
    OwnedList<INodeCfg> refused_;
    std::optional<std::wstring> rootDirectory_;
    // Elements open inside the capturing node's element.
    int nested_ = 0;
    MarkupCapture captured_;
    std::wstring pendingText_;
    std::wstring elementName_;
};

}  // namespace kaz::kazparser
