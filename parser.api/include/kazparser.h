#pragma once

// kazparser: reads presentation-engine configuration texts into trees of
// typed, editable nodes and writes them back as XML.

#include "kazexception/IKAZException.h"
#include "kazexception/KAZExceptionFactory.h"
#include "kazparser/IDataCfg.h"
#include "kazparser/IExtParamCfg.h"
#include "kazparser/IExtParamsCfg.h"
#include "kazparser/ILanguageStringCfg.h"
#include "kazparser/INodeCfg.h"
#include "kazparser/INodeCfgCollection.h"
#include "kazparser/IParamCfg.h"
#include "kazparser/IParamSetCfg.h"
#include "kazparser/IParamSetsCfg.h"
#include "kazparser/IUseDataCfg.h"
#include "kazparser/IUseRefDataCfg.h"
#include "kazparser/IXNodeCfg.h"
#include "kazparser/IXValueCfg.h"
#include "kazparser/KAZConfigFactory.h"
#include "kazparser/XmlEscaping.h"
#include "kazxml/PlatformError.h"
#include "memobject/MemObject.h"
