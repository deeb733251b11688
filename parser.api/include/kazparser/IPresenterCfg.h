#pragma once

#include "kazparser/IPlugInCfg.h"

namespace kaz::kazparser {

// The plug-in that turns the result of a processing chain into drawn
// content (NodeType Presenter). It is written as "Presenter" while its name
// is empty. isValid() always answers false.
class KAZPARSER_API IPresenterCfg : public IPlugInCfg {};

}  // namespace kaz::kazparser
