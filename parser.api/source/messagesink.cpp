#include "messagesink.h"

#include <iostream>
#include <mutex>

#include "ioutils/TextCodec.h"

namespace kaz::kazparser {
namespace {

void writeToStandardError(const std::wstring& text, const std::wstring& caption) {
    std::cerr << ioutils::utf8FromWide(caption) << ": " << ioutils::utf8FromWide(text) << std::endl;
}

struct Sink {
    std::mutex mutex;
    KAZConfigFactory::MessageHandler handler = writeToStandardError;
};

Sink& sink() {
    static Sink instance;
    return instance;
}

}  // namespace

void showMessage(const std::wstring& text, const std::wstring& caption) {
    KAZConfigFactory::MessageHandler handler;
    {
        std::lock_guard<std::mutex> lock(sink().mutex);
        handler = sink().handler;
    }
    if (handler) handler(text, caption);
}

KAZConfigFactory::MessageHandler installMessageHandler(KAZConfigFactory::MessageHandler handler) {
    std::lock_guard<std::mutex> lock(sink().mutex);
    KAZConfigFactory::MessageHandler previous = std::move(sink().handler);
    sink().handler = handler ? std::move(handler) : writeToStandardError;
    return previous;
}

}  // namespace kaz::kazparser
