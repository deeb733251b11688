// Table selections and output configurations: attributes, presenter stages.

#include "testsupport.h"

namespace {

using namespace kaztest;
using PresenterTest = LeakCheckedTest;

TEST_F(PresenterTest, TableSelectionAttributesAreReadDecoded) {
    const std::wstring text =
        L"<SelectTables mode=\"a &lt; b\" q=\"x\"><Table name=\"R\"/></SelectTables>";
    NodePtr<ISelectTablesCfg> selection(KAZConfigFactory::createSelectTablesCfg(&text, nullptr));
    EXPECT_EQ(selection->getAttribute(L"mode"), L"a < b");
    EXPECT_EQ(selection->getAttributeName(1), L"q");
    EXPECT_EQ(selection->getChildCount(), 0u) << "the content is kept as text";
    selection->setAttribute(L"mode", L"all");
    selection->setAttribute(L"n", L"1");
    EXPECT_EQ(selection->getAttributeCount(), 3u);
    EXPECT_EQ(
        selection->toXml(),
        L"<SelectTables mode=\"all\" q=\"x\" n=\"1\"><Table name=\"R\"></Table></SelectTables>");
}

TEST_F(PresenterTest, OutputModifierListComesFirstThenThePresenterStagesInOrder) {
    NodePtr<IOutputConfigCfg> output(KAZConfigFactory::createOutputConfigCfg(nullptr, nullptr));
    IUsePresenterCfg* p = KAZConfigFactory::createUsePresenterCfg(nullptr, nullptr);
    IUsePresenterCfg* q = KAZConfigFactory::createUsePresenterCfg(nullptr, nullptr);
    EXPECT_EQ(output->appendUsePresenter(q), 1u);
    EXPECT_EQ(output->insertUsePresenter(p, 0), 0u);
    output->setUseDataModifiers(KAZConfigFactory::createUseDataModifiersCfg(nullptr, nullptr));
    EXPECT_EQ(output->getChild(0), output->getUseDataModifiers());
    EXPECT_EQ(output->getChild(2), q);
    EXPECT_EQ(output->getUsePresenter(L"UsePresenter"), p) << "the first of that name";
    EXPECT_EQ(output->getUsePresenter(L"Label"), nullptr);

    EXPECT_EQ(output->appendUsePresenter(nullptr), 3u) << "an empty entry, not written";
    EXPECT_EQ(output->toXml(),
              L"<OutputConfig><UseDataModifiers></UseDataModifiers><UsePresenter></UsePresenter>"
              L"<UsePresenter></UsePresenter></OutputConfig>");
    NodePtr<IOutputConfigCfg> copy(dynamic_cast<IOutputConfigCfg*>(output->clone()));
    EXPECT_EQ(copy->getUsePresenterCount(), 3u) << "the empty entry is copied";

    NodePtr<IUsePresenterCfg> removed(output->removeUsePresenter(0));
    EXPECT_EQ(removed.get(), p);
    EXPECT_EQ(p->getParent(), nullptr);
    output->setUsePresenter(q, 0);  // the held stage is kept, not deleted
    EXPECT_EQ(output->getUsePresenter(0), q);
}

}  // namespace
