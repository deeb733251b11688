#include "nodekinds.h"

#include "kazparser/NodeKind.h"

#include <array>
#include <type_traits>
#include <unordered_map>

#include "datacollectorcfgimpl.h"
#include "datamodifiercfgimpl.h"
#include "extparamcfgimpl.h"
#include "extparamscfgimpl.h"
#include "extravaluesconfigcfgimpl.h"
#include "featurecfgimpl.h"
#include "featurescfgimpl.h"
#include "inputconfigcfgimpl.h"
#include "languagestringcfgimpl.h"
#include "outputconfigcfgimpl.h"
#include "paramcfgimpl.h"
#include "paramsetcfgimpl.h"
#include "paramsetscfgimpl.h"
#include "presentationelementcfgimpl.h"
#include "presentationelementscfgimpl.h"
#include "presentationgroupcfgimpl.h"
#include "presentercfgimpl.h"
#include "samplefixedresultcfgimpl.h"
#include "samplerefresultcfgimpl.h"
#include "sampleresultscfgimpl.h"
#include "selecttablescfgimpl.h"
#include "usedatacfgimpl.h"
#include "usedatacollectorcfgimpl.h"
#include "usedatamodifierscfgimpl.h"
#include "useenginecfgimpl.h"
#include "useexpressioncfgimpl.h"
#include "usefixedpresentationelementcfgimpl.h"
#include "usepresentercfgimpl.h"
#include "userefdatacfgimpl.h"
#include "userefpresentationelementcfgimpl.h"
#include "xnodecfgimpl.h"
#include "xvaluecfgimpl.h"

namespace kaz::kazparser::kinds {
namespace {

using T = INodeCfg;

// Makes an `Impl` from the element and its parent, or from the parent alone
// for the kinds that read nothing of the element. The node knows where its
// element starts.
template <class Impl>
Made make(const ElementStart& element, INodeCfg* parent) {
    Impl* node;
    if constexpr (std::is_constructible_v<Impl, const ElementStart&, INodeCfg*>)
        node = new Impl(element, parent);
    else
        node = new Impl(parent);
    node->locate(element.where);
    if constexpr (std::is_base_of_v<ContentSink, Impl>)
        return {node, node};
    else
        return {node, nullptr};
}

template <class Impl>
INodeCfg* makeEmpty(INodeCfg* parent) {
    return new Impl(parent);
}

template <class Impl>
constexpr Kind kind(T::NodeType type, std::wstring_view tag, Content content,
                    std::optional<T::NodeType> childKind = std::nullopt, bool expectable = false) {
    return {type,      tag,       Impl::kClassName, content, make<Impl>, makeEmpty<Impl>,
            childKind, expectable};
}

constexpr auto N = Content::Nodes;
constexpr bool kExpectable = true;

// One row a kind, in node-type order; the generic node and the language
// string (which shares the typed value's node type) close the table.
const std::array<Kind, 32> kKinds = {
    kind<ParamCfgImpl>(T::Param, L"Param", N, std::nullopt, kExpectable),
    kind<ExtParamCfgImpl>(T::ExtParam, L"ExtParam", N),
    kind<ExtParamsCfgImpl>(T::ExtParams, L"ExtParams", N),
    kind<DataCollectorCfgImpl>(T::DataCollector, L"", N, std::nullopt, kExpectable),
    kind<DataModifierCfgImpl>(T::DataModifier, L"DataModifiers", N, std::nullopt, kExpectable),
    kind<PresenterCfgImpl>(T::Presenter, L"Presenter", N, std::nullopt, kExpectable),
    kind<UseRefPresentationElementCfgImpl>(T::UseRefPresentationElement,
                                           L"UseRefPresentationElement", N),
    kind<UseFixedPresentationElementCfgImpl>(T::UseFixedPresentationElement,
                                             L"UseFixedPresentationElement", N),
    kind<FeaturesCfgImpl>(T::Features, L"Features", N, T::Feature),
    kind<FeatureCfgImpl>(T::Feature, L"Feature", Content::Raw, std::nullopt, kExpectable),
    kind<ParamSetsCfgImpl>(T::ParamSets, L"ParamSets", N, T::ParamSet),
    kind<ParamSetCfgImpl>(T::ParamSet, L"ParamSet", N, T::Param, kExpectable),
    kind<UsePresenterCfgImpl>(T::UsePresenter, L"UsePresenter", N, T::Presenter),
    kind<UseDataCollectorCfgImpl>(T::UseDataCollector, L"UseDataCollector", N, T::DataCollector),
    kind<UseDataModifiersCfgImpl>(T::UseDataModifiers, L"UseDataModifiers", N, T::DataModifier),
    kind<XValueCfgImpl>(T::XValue, L"XValue", N),
    kind<UseDataCfgImpl>(T::UseData, L"UseData", Content::Value),
    kind<UseExpressionCfgImpl>(T::UseExpression, L"UseExpression", Content::Text),
    kind<UseEngineCfgImpl>(T::UseEngine, L"UseEngine", N),
    kind<UseRefDataCfgImpl>(T::UseRefData, L"UseData", Content::Markup),
    kind<SelectTablesCfgImpl>(T::SelectTables, L"SelectTables", Content::Markup),
    kind<InputConfigCfgImpl>(T::InputConfig, L"InputConfig", N),
    kind<OutputConfigCfgImpl>(T::OutputConfig, L"OutputConfig", N),
    kind<PresentationElementCfgImpl>(T::PresentationElement, L"PresentationElement", N),
    kind<PresentationElementsCfgImpl>(T::PresentationElements, L"PresentationElements", N),
    kind<PresentationGroupCfgImpl>(T::PresentationGroup, L"PresentationGroup", N),
    kind<XNodeCfgImpl>(T::XNode, L"XNode", N),
    kind<ExtraValuesConfigCfgImpl>(T::ExtraValuesConfig, L"ExtraValuesConfig", N),
    kind<SampleResultsCfgImpl>(T::SampleResults, L"SampleResults", N),
    kind<SampleFixedResultCfgImpl>(T::SampleFixedResult, L"SampleFixedResult", N),
    kind<SampleRefResultCfgImpl>(T::SampleRefResult, L"SampleRefResult", Content::Text),
    kind<LanguageStringCfgImpl>(T::UseData, L"UseLanguageString", Content::Text),
};

// Element names that decide their kind (null: known, but no node).
// A tag's length and its first, middle and last characters tell the tags
// apart well enough; hashing every character cost more than the rest of
// the lookup.
struct TagHash {
    std::size_t operator()(std::wstring_view name) const noexcept {
        std::size_t hash = name.size();
        if (!name.empty())
            for (const wchar_t c : {name.front(), name[name.size() / 2], name.back()})
                hash = hash * 131 + static_cast<std::size_t>(c);
        return hash;
    }
};
using NameTable = std::unordered_map<std::wstring_view, const Kind*, TagHash>;

NameTable makeNameTable() {
    using tableobj::IElement;
    NameTable names;
    for (T::NodeType type : {T::PresentationGroup,
                             T::InputConfig,
                             T::PresentationElements,
                             T::XValue,
                             T::UseDataCollector,
                             T::UseDataModifiers,
                             T::UseRefPresentationElement,
                             T::UseFixedPresentationElement,
                             T::ExtParams,
                             T::ExtParam,
                             T::PresentationElement,
                             T::OutputConfig,
                             T::UsePresenter,
                             T::ParamSets,
                             T::UseExpression,
                             T::UseEngine,
                             T::SelectTables,
                             T::Features,
                             T::ExtraValuesConfig,
                             T::SampleResults,
                             T::SampleFixedResult,
                             T::SampleRefResult})
        names.emplace(of(type).tag, &of(type));
    names.emplace(L"UseXValue", &of(T::UseRefData));
    names.emplace(L"UseData", &of(T::UseRefData));
    for (IElement::ElementType type :
         {IElement::Double, IElement::String, IElement::Integer, IElement::Boolean,
          IElement::Tables, IElement::Table, IElement::Column})
        names.emplace(UseDataCfgImpl::elementNameOf(type), &of(T::UseData));
    names.emplace(languageString().tag, &languageString());
    // Table elements feed the value being read; elsewhere they make nothing.
    for (std::wstring_view table : {L"Tables", L"Table", L"Properties", L"Property", L"Column"})
        names.emplace(table, nullptr);
    return names;
}

}  // namespace

const Kind* byName(std::wstring_view name, bool& makesNothing) {
    static const auto names = makeNameTable();
    const auto found = names.find(name);
    makesNothing = found != names.end() && found->second == nullptr;
    return found != names.end() ? found->second : nullptr;
}

const Kind& of(INodeCfg::NodeType type) {
    return kKinds[static_cast<std::size_t>(type)];
}

const Kind* expected(INodeCfg::NodeType type) {
    const auto index = static_cast<std::size_t>(type);
    return index < kKinds.size() && kKinds[index].expectable ? &kKinds[index] : nullptr;
}

const Kind& childOf(INodeCfg::NodeType parentType) {
    const auto index = static_cast<std::size_t>(parentType);
    const std::optional<T::NodeType> child =
        index <= T::SampleRefResult ? kKinds[index].childKind : std::nullopt;
    return of(child ? *child : T::XNode);
}

namespace {

// Each row's tag as a string that lives as long as the process.
const std::wstring& tagOfRow(std::size_t row) {
    static const auto tags = [] {
        std::array<std::wstring, kKinds.size()> all;
        for (std::size_t i = 0; i < kKinds.size(); ++i) all[i] = kKinds[i].tag;
        return all;
    }();
    return tags[row];
}

}  // namespace

const std::wstring& tag(INodeCfg::NodeType type) {
    return tagOfRow(static_cast<std::size_t>(type));
}

const Kind& languageString() {
    return kKinds.back();
}

const std::wstring& languageStringTag() {
    return tagOfRow(kKinds.size() - 1);
}

}  // namespace kaz::kazparser::kinds

namespace kaz::kazparser {

// The class name without its namespace and "CfgImpl".
std::wstring_view kindName(INodeCfg::NodeType type) {
    if (static_cast<unsigned>(type) > INodeCfg::SampleRefResult) return {};
    std::wstring_view name = kinds::of(type).className;
    name.remove_prefix(name.rfind(L':') + 1);
    name.remove_suffix(std::wstring_view(L"CfgImpl").size());
    return name;
}

}  // namespace kaz::kazparser
