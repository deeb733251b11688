#pragma once

#include <string_view>

#include "kazparser/IPresenterCfg.h"
#include "pluginnode.h"

namespace kaz::kazparser {

// A presenter: a plug-in written as "Presenter" while its name is empty,
// and never valid.
class PresenterCfgImpl final : public PlugInNode<IPresenterCfg, PresenterCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::PresenterCfgImpl";
    static constexpr NodeType kNodeType = Presenter;

    explicit PresenterCfgImpl(INodeCfg* parent);
    PresenterCfgImpl(const ElementStart& element, INodeCfg* parent);

    INodeCfg* clone() const override;
    bool isValid() const override { return false; }

private:
    PresenterCfgImpl(const PresenterCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
