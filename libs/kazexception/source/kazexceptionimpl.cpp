#include <sstream>

#include "kazexception/KAZExceptionFactory.h"
#include "memobject/MemObject.h"

namespace kazexception {
namespace {

class KAZExceptionImpl final : public IKAZException, public virtual MemObject {
public:
    KAZExceptionImpl(Kind kind, std::wstring message, std::wstring context, IKAZException* inner)
        : kind_(kind), message_(std::move(message)), context_(std::move(context)), inner_(inner) {}

    Kind getKind() const override { return kind_; }
    const std::wstring& getMessage() const override { return message_; }
    const std::wstring& getContext() const override { return context_; }
    IKAZException* getInnerException() const override { return inner_; }

    void release() override {
        // Walk the chain iteratively so that long chains cannot exhaust the stack.
        IKAZException* next = inner_;
        inner_ = nullptr;
        delete this;
        while (next != nullptr) {
            auto* impl = dynamic_cast<KAZExceptionImpl*>(next);
            if (impl == nullptr) {  // a foreign exception frees its own chain
                next->release();
                return;
            }
            next = impl->inner_;
            impl->inner_ = nullptr;
            delete impl;
        }
    }

private:
    ~KAZExceptionImpl() override = default;

    Kind kind_;
    std::wstring message_;
    std::wstring context_;
    IKAZException* inner_;
};

IKAZException* create(IKAZException::Kind kind, const std::wstring& message,
                      const std::wstring& context, IKAZException* inner) {
    ExceptionGuard innerGuard(inner);  // freed if the allocation fails
    IKAZException* e = new KAZExceptionImpl(kind, message, context, inner);
    innerGuard.take();
    return e;
}

}  // namespace

IKAZException* KAZExceptionFactory::createOutOfRangeException(const std::wstring& message,
                                                              const std::wstring& context,
                                                              IKAZException* inner) {
    return create(IKAZException::OutOfRange, message, context, inner);
}

IKAZException* KAZExceptionFactory::createInvalidDataException(const std::wstring& message,
                                                               const std::wstring& context,
                                                               IKAZException* inner) {
    return create(IKAZException::InvalidData, message, context, inner);
}

IKAZException* KAZExceptionFactory::createParsingException(const std::wstring& message,
                                                           const std::wstring& context,
                                                           IKAZException* inner) {
    return create(IKAZException::Parsing, message, context, inner);
}

std::wstring makeContext(const char* file, int line, const std::wstring& method) {
    std::wostringstream text;
    text << L"\t[file] " << file << L"\n\t[line] " << line << L"\n\t[method] " << method;
    return text.str();
}

}  // namespace kazexception
