#include "configgen.h"

#include <cstdio>
#include <initializer_list>

#include "ioutils/TextCodec.h"

namespace kazbench {
namespace {

// `pattern` with each "{k}" replaced by the k-th of `values`.
std::wstring fill(const wchar_t* pattern, std::initializer_list<std::wstring> values) {
    std::wstring text;
    for (const wchar_t* p = pattern; *p != L'\0'; ++p) {
        if (*p == L'{' && p[1] >= L'0' && p[1] <= L'9' && p[2] == L'}') {
            text += values.begin()[p[1] - L'0'];
            p += 2;
        } else {
            text += *p;
        }
    }
    return text;
}

std::wstring number(double value) {
    wchar_t buffer[32];
    std::swprintf(buffer, 32, L"%g", value);
    return buffer;
}

std::wstring number(int value) {
    return std::to_wstring(value);
}

// The element written for reference `i`; the varying parts depend on `i` only.
std::wstring element(int i) {
    return fill(
        LR"(
    <PresentationElement name="Element {0}" desc="Élément généré Nr. {0}" schemaVersion="2.1" kaz.DwgSysParam.MeasureScale="0.5">
      <Features>
        <Color>#00{1}FF</Color>
        <Pattern kind="dash">dash-{2}</Pattern>
        <Note>Größe &amp; Maß</Note>
      </Features>
      <ExtraValuesConfig>
        <XValue name="priority"><UseInteger>{3}</UseInteger></XValue>
        <XValue name="visible" systemValue="true"><UseBoolean>true</UseBoolean></XValue>
      </ExtraValuesConfig>
      <InputConfig>
        <UseDataCollector>
          <RoadCollector engineFile="roads.dll" engineID="Roads.Collector">
            <ParamSets>
              <ParamSet name="Source" desc="input">
                <Layer><UseString>ROADS_{4}</UseString></Layer>
                <Offset shift="0.25" transformCode="T1"><UseDouble>{5}</UseDouble></Offset>
                <Count><UseInteger>{0}</UseInteger></Count>
                <Enabled><UseBoolean>true</UseBoolean></Enabled>
                <Lanes><UseTable><Table name="Lanes"><Column name="Width" datatype="double"><Row>3.5</Row><Row>3.25</Row></Column><Column name="Kind" datatype="string"><Row>drive</Row><Row>bike</Row></Column></Table></UseTable></Lanes>
              </ParamSet>
            </ParamSets>
          </RoadCollector>
          <SampleResults name="samples">
            <SampleFixedResult name="s1"><UseDouble>1.5</UseDouble></SampleFixedResult>
            <SampleRefResult name="s2" refData="Lanes.Width"/>
          </SampleResults>
        </UseDataCollector>
        <UseDataModifiers>
          <Sort engineID="Sort"><ParamSets><ParamSet name="By"><Key><UseString>Name</UseString></Key></ParamSet></ParamSets></Sort>
        </UseDataModifiers>
      </InputConfig>
      <OutputConfig>
        <UsePresenter>
          <SelectTables mode="first"><Table name="Lanes"/></SelectTables>
          <LabelPresenter engineID="Label">
            <ParamSets>
              <ParamSet name="Style">
                <Font><UseString>Arial Ünicode</UseString></Font>
                <Size scaleRelate="true"><UseDouble>2.5</UseDouble></Size>
              </ParamSet>
            </ParamSets>
          </LabelPresenter>
        </UsePresenter>
      </OutputConfig>
    </PresentationElement>)",
        {number(i), number(10 + i % 90), number(i % 5), number(i % 10), number(i % 17),
         number(i * 0.125)});
}

std::wstring reference(int i) {
    return fill(
               LR"(
  <UseFixedPresentationElement elemID="E{0}" active="true" label="Straße {0}" labelStringID="IDS_L{0}" desc="Fahrbahn — Spur {1}" refMainData="Main{0}">
    <ExtParams>
      <ExtParam name="width" scaleRelate="true"><UseDouble>{2}</UseDouble></ExtParam>
      <ExtParam name="layer"><UseString>Layer-{3}</UseString></ExtParam>
    </ExtParams>)",
               {number(i), number(i % 4), number(3.5 + i % 7), number(i % 13)}) +
           element(i) + L"\n  </UseFixedPresentationElement>";
}

}  // namespace

std::wstring presentationGroup(std::size_t bytes) {
    std::wstring text =
        LR"(<PresentationGroup name="Generated" desc="Straßennetz" schemaVersion="2.1" previewImg="preview.png">
  <Features><Theme>Nacht</Theme></Features>
  <PresentationElements>)";
    std::size_t size = utf8(text).size();
    for (int i = 0; size < bytes; ++i) {
        const std::wstring next = reference(i);
        size += utf8(next).size();
        text += next;
    }
    return text + L"\n  </PresentationElements>\n</PresentationGroup>\n";
}

std::wstring presentationElement() {
    return element(7).substr(5) + L"\n";  // without the leading line break and indent
}

std::string utf8(const std::wstring& text) {
    return ioutils::utf8FromWide(text);
}

}  // namespace kazbench
