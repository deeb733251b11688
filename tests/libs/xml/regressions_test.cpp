// Inputs that once made the XML layer fail, kept under fuzz/regressions:
// the reader and the document must agree on them, and loaded markup must
// load again.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "ioutils/IOUtils.h"
#include "kazxml/Document.h"
#include "kazxml/SAX.h"

namespace {

namespace fs = std::filesystem;
using namespace kaz::xml;

TEST(Regressions, ReaderAndDocumentAgreeAndMarkupLoadsAgain) {
    const char* root = std::getenv("KAZ_TEST_DATA");
    const fs::path folder = fs::path(root != nullptr ? root : ".") / "fuzz" / "regressions";
    int checked = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        SCOPED_TRACE(entry.path().string());
        const std::wstring text =
            ioutils::IOUtilsFactory::createIOUtils()->readTextFile(entry.path().wstring());
        SAXXMLReader reader;
        const bool readerAccepts = succeeded(reader.parse(text));
        IXMLDOMDocument2Ptr document = Document::create();
        ASSERT_EQ(document->loadXML(text), readerAccepts);
        if (readerAccepts) {
            EXPECT_TRUE(Document::create()->loadXML(document->xml()));
        }
        ++checked;
    }
    EXPECT_GT(checked, 0);
}

}  // namespace
