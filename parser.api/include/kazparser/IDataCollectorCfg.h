#pragma once

#include "kazparser/IPlugInCfg.h"

namespace kaz::kazparser {

// The plug-in that gathers the input data of a processing chain
// (NodeType DataCollector). Its element name is the stored name, even empty.
class KAZPARSER_API IDataCollectorCfg : public IPlugInCfg {};

}  // namespace kaz::kazparser
