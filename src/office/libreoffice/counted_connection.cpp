#include "office/libreoffice/counted_connection.h"

#include <com/sun/star/io/IOException.hpp>

#include <utility>

namespace libreoffice {

CountedConnection::CountedConnection(uno::Reference<css::connection::XConnection> inner)
    : inner_(std::move(inner)) {}

sal_Int32 CountedConnection::read(uno::Sequence<sal_Int8>& bytes, sal_Int32 wanted) {
    try {
        const sal_Int32 got = inner_->read(bytes, wanted);
        if (got < wanted) broken_ = true;
        if (wanted == blockHeadSize && got == wanted) countBlock(bytes);
        return got;
    } catch (const uno::Exception&) {
        broken_ = true;
        throw;
    }
}

void CountedConnection::write(const uno::Sequence<sal_Int8>& bytes) {
    try {
        inner_->write(bytes);
    } catch (const uno::Exception&) {
        broken_ = true;
        throw;
    }
}

void CountedConnection::flush() {
    inner_->flush();
}

void CountedConnection::close() {
    broken_ = true;
    inner_->close();
}

rtl::OUString CountedConnection::getDescription() {
    return inner_->getDescription();
}

void CountedConnection::countBlock(const uno::Sequence<sal_Int8>& head) {
    std::uint32_t messages = 0;
    for (sal_Int32 i = 4; i < blockHeadSize; ++i)
        messages = messages << 8U | static_cast<std::uint8_t>(head[i]);
    messagesRead_ += messages;
}

}  // namespace libreoffice
