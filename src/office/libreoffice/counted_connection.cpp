#include "office/libreoffice/counted_connection.h"

#include <com/sun/star/io/IOException.hpp>

#include <algorithm>
#include <utility>

namespace libreoffice {

CountedConnection::CountedConnection(uno::Reference<css::connection::XConnection> inner)
    : inner_(std::move(inner)) {}

sal_Int32 CountedConnection::read(uno::Sequence<sal_Int8>& bytes, sal_Int32 wanted) {
    try {
        const sal_Int32 got = inner_->read(bytes, wanted);
        if (got < wanted) broken_ = true;
        // A body may be as short as a head, so the length alone does not tell the two apart.
        if (bodyLeft_ > 0)
            bodyLeft_ -= std::min(bodyLeft_, static_cast<std::uint32_t>(got));
        else if (wanted == blockHeadSize && got == wanted)
            countBlock(bytes);
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
    bodyLeft_ = numberAt(head, 0);
    messagesRead_ += numberAt(head, 4);
}

std::uint32_t CountedConnection::numberAt(const uno::Sequence<sal_Int8>& head, sal_Int32 offset) {
    std::uint32_t number = 0;
    for (sal_Int32 i = offset; i < offset + 4; ++i)
        number = number << 8U | static_cast<std::uint8_t>(head[i]);
    return number;
}

}  // namespace libreoffice
