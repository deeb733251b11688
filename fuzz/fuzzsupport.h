// What the fuzz targets over the node trees share: inputs read as text, the
// rules they check, and the node kinds that have a text form.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "ioutils/TextCodec.h"
#include "kazparser.h"

namespace kazfuzz {

using namespace kaz::kazparser;
using Create = INodeCfg* (*)(const std::wstring* text, INodeCfg* parent);

// The bytes read as UTF-8.
inline std::wstring textOf(const std::uint8_t* data, std::size_t size) {
    return ioutils::wideFromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));
}

// Stops the run, naming the rule that does not hold.
inline void check(bool holds, const char* rule) {
    if (holds) return;
    std::fprintf(stderr, "rule broken: %s\n", rule);
    std::abort();
}

// Runs `action` and frees what the library raises for a text or an argument
// it refuses; answers whether nothing was raised.
template <class Action>
bool attempt(Action&& action) {
    try {
        action();
        return true;
    } catch (kazexception::IKAZException* e) {
        e->release();
    } catch (const kaz::xml::PlatformError&) {
    }
    return false;
}

// The messages shown for malformed texts since the start, counted instead
// of printed.
inline long& shownMessages() {
    static long count = 0;
    return count;
}

// The objects alive at the start of an input. The first call has the
// messages shown from then on counted.
inline long liveAtStart() {
    static const bool counting = [] {
        KAZConfigFactory::setMessageHandler(
            [](const std::wstring&, const std::wstring&) { ++shownMessages(); });
        return true;
    }();
    (void)counting;
    return MemObject::liveCount();
}

// Runs `test(selector, text)` with the input's first byte and the rest read
// as UTF-8, when there is a text (no text gives the empty node of a kind:
// nothing is read); what it makes must all be freed.
template <class Test>
int testSelected(const std::uint8_t* data, std::size_t size, Test&& test) {
    if (size < 2) return 0;
    const long live = liveAtStart();
    test(data[0], textOf(data + 1, size - 1));
    check(MemObject::liveCount() == live, "everything made is freed");
    return 0;
}

// The text of the generic tree read from `text`; empty when it is refused.
inline std::wstring genericText(const std::wstring& text) {
    std::wstring written;
    attempt([&] {
        std::unique_ptr<IXNodeCfg> root(KAZConfigFactory::createXNodeCfg(&text, nullptr));
        if (root != nullptr) written = root->toXml();
    });
    return written;
}

// A node kind and its text form (no text: the empty node of the kind).
struct Kind {
    INodeCfg::NodeType type;
    Create create;
};

#define KAZ_FUZZ_KIND(type, create)                                                   \
    Kind {                                                                            \
        INodeCfg::type, [](const std::wstring* text, INodeCfg* parent) -> INodeCfg* { \
            return KAZConfigFactory::create(text, parent);                            \
        }                                                                             \
    }

// Every kind with a text form of its own, in node-type order; the typed
// values and the generic node, which have forms of their own, are left out.
inline const std::array<Kind, 30> kKinds = {
    KAZ_FUZZ_KIND(Param, createParamCfg),
    KAZ_FUZZ_KIND(ExtParam, createExtParamCfg),
    KAZ_FUZZ_KIND(ExtParams, createExtParamsCfg),
    KAZ_FUZZ_KIND(DataCollector, createDataCollectorCfg),
    KAZ_FUZZ_KIND(DataModifier, createDataModifierCfg),
    KAZ_FUZZ_KIND(Presenter, createPresenterCfg),
    KAZ_FUZZ_KIND(UseRefPresentationElement, createUseRefPresentationElementCfg),
    KAZ_FUZZ_KIND(UseFixedPresentationElement, createUseFixedPresentationElementCfg),
    KAZ_FUZZ_KIND(Features, createFeaturesCfg),
    KAZ_FUZZ_KIND(Feature, createFeatureCfg),
    KAZ_FUZZ_KIND(ParamSets, createParamSetsCfg),
    KAZ_FUZZ_KIND(ParamSet, createParamSetCfg),
    KAZ_FUZZ_KIND(UsePresenter, createUsePresenterCfg),
    KAZ_FUZZ_KIND(UseDataCollector, createUseDataCollectorCfg),
    KAZ_FUZZ_KIND(UseDataModifiers, createUseDataModifiersCfg),
    KAZ_FUZZ_KIND(XValue, createXValueCfg),
    KAZ_FUZZ_KIND(UseData, createLanguageStringCfg),
    KAZ_FUZZ_KIND(UseExpression, createUseExpressionCfg),
    KAZ_FUZZ_KIND(UseEngine, createUseEngineCfg),
    Kind{INodeCfg::UseRefData,
         [](const std::wstring* text, INodeCfg* parent) -> INodeCfg* {
             return KAZConfigFactory::createUseRefDataCfg(tableobj::IElement::String, text, parent);
         }},
    KAZ_FUZZ_KIND(SelectTables, createSelectTablesCfg),
    KAZ_FUZZ_KIND(InputConfig, createInputConfigCfg),
    KAZ_FUZZ_KIND(OutputConfig, createOutputConfigCfg),
    KAZ_FUZZ_KIND(PresentationElement, createPresentationElementCfg),
    KAZ_FUZZ_KIND(PresentationElements, createPresentationElementsCfg),
    KAZ_FUZZ_KIND(PresentationGroup, createPresentationGroupCfg),
    KAZ_FUZZ_KIND(ExtraValuesConfig, createExtraValuesConfigCfg),
    KAZ_FUZZ_KIND(SampleResults, createSampleResultsCfg),
    KAZ_FUZZ_KIND(SampleFixedResult, createSampleFixedResultCfg),
    KAZ_FUZZ_KIND(SampleRefResult, createSampleRefResultCfg),
};

#undef KAZ_FUZZ_KIND

}  // namespace kazfuzz
