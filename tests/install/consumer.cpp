// Reads a text through the installed library and checks what it writes back.
#include <kazparser.h>

#include <iostream>
#include <memory>

int main() {
    const std::wstring text = L"<Root a=\"1\"><Item>x</Item></Root>";
    std::unique_ptr<kaz::kazparser::IXNodeCfg> root(
        kaz::kazparser::KAZConfigFactory::createXNodeCfg(&text, nullptr));
    const bool ok = root && root->toXml() == L"<Root a=\"1\"><Item>x</Item></Root>";
    std::cout << (ok ? "installed package works" : "installed package is broken") << '\n';
    return ok ? 0 : 1;
}
