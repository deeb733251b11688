#pragma once

#include "kazparser/IPlugInCfg.h"

namespace kaz::kazparser {

// The plug-in that transforms the data of a processing chain (NodeType
// DataModifier). It is written as "DataModifiers" while its name is empty;
// getName() still answers the stored name.
class KAZPARSER_API IDataModifierCfg : public IPlugInCfg {};

}  // namespace kaz::kazparser
