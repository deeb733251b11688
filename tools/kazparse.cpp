// kazparse: reads configuration files and prints their node tree and the
// XML text the tree writes back.

#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "ioutils/IOUtils.h"
#include "ioutils/TextCodec.h"
#include "kazparser.h"

namespace {

using kaz::kazparser::INodeCfg;

std::string utf8(const std::wstring& text) {
    return ioutils::utf8FromWide(text);
}

void printTree(const INodeCfg& node, int depth) {
    std::cout << std::string(static_cast<std::size_t>(depth) * 2, ' ') << utf8(node.getName())
              << " [" << utf8(std::wstring(kaz::kazparser::kindName(node.getNodeType()))) << "]\n";
    for (unsigned int i = 0; i < node.getChildCount(); ++i)
        if (const INodeCfg* child = node.getChild(i)) printTree(*child, depth + 1);
}

void printException(kazexception::IKAZException* e) {
    for (int level = 0; e != nullptr; e = e->getInnerException(), ++level) {
        std::cerr << (level == 0 ? "error: " : "caused by: ") << utf8(e->getMessage()) << '\n'
                  << utf8(e->getContext()) << '\n';
    }
}

struct Options {
    bool generic = false;
    bool tree = true;
    bool xml = true;
    std::vector<std::string> files;
};

bool parseArguments(int argc, char** argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--generic") {
            options.generic = true;
        } else if (argument == "--tree") {
            options.xml = false;
        } else if (argument == "--xml") {
            options.tree = false;
        } else if (!argument.empty() && argument[0] == '-') {
            return false;
        } else {
            options.files.push_back(argument);
        }
    }
    return !options.files.empty();
}

// Parses one file and prints it; answers whether it gave a tree.
bool process(const std::string& file, const Options& options) {
    try {
        const std::wstring text =
            ioutils::IOUtilsFactory::createIOUtils()->readTextFile(ioutils::wideFromUtf8(file));
        using Factory = kaz::kazparser::KAZConfigFactory;
        std::unique_ptr<INodeCfg> root(options.generic ? Factory::createXNodeCfg(&text, nullptr)
                                                       : Factory::createNodeCfg(&text, nullptr));
        if (root == nullptr) {
            std::cerr << file << ": no configuration could be read\n";
            return false;
        }
        if (options.tree) printTree(*root, 0);
        if (options.xml) std::cout << utf8(root->toXml()) << '\n';
        return true;
    } catch (kazexception::IKAZException* e) {
        std::cerr << file << ":\n";
        printException(e);
        e->release();
    } catch (const kaz::xml::PlatformError& error) {
        std::cerr << file << ": " << utf8(error.message()) << '\n';
    }
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (!parseArguments(argc, argv, options)) {
        std::cerr << "usage: kazparse [--generic] [--tree | --xml] FILE...\n"
                     "  Prints each configuration's node tree and the XML it writes back.\n"
                     "  --generic  read every element as a generic node\n";
        return 2;
    }
    bool ok = true;
    for (const std::string& file : options.files) ok = process(file, options) && ok;
    return ok ? 0 : 1;
}
