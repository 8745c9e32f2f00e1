#pragma once

#include <com/sun/star/connection/XConnection.hpp>
#include <cppuhelper/implbase1.hxx>

#include <atomic>
#include <cstdint>

#include "office/libreoffice/uno_values.h"

namespace libreoffice {

/// The byte stream of a bridge, looked at as it passes: how many messages came back, and whether it
/// broke.
class CountedConnection : public cppu::WeakImplHelper1<css::connection::XConnection> {
public:
    explicit CountedConnection(uno::Reference<css::connection::XConnection> inner);

    sal_Int32 SAL_CALL read(uno::Sequence<sal_Int8>& bytes, sal_Int32 wanted) override;
    void SAL_CALL write(const uno::Sequence<sal_Int8>& bytes) override;
    void SAL_CALL flush() override;
    void SAL_CALL close() override;
    rtl::OUString SAL_CALL getDescription() override;

    [[nodiscard]] std::uint64_t messagesRead() const { return messagesRead_; }
    [[nodiscard]] bool isBroken() const { return broken_; }

private:
    /// The head of a block of the protocol: its size and its count of messages, four bytes each,
    /// big-endian.
    static constexpr sal_Int32 blockHeadSize = 8;

    void countBlock(const uno::Sequence<sal_Int8>& head);
    [[nodiscard]] static std::uint32_t numberAt(const uno::Sequence<sal_Int8>& head,
                                                sal_Int32 offset);

    uno::Reference<css::connection::XConnection> inner_;
    /// Bytes of the current block that are still to come. Only the bridge's reading thread touches
    /// it.
    std::uint32_t bodyLeft_ = 0;
    std::atomic<std::uint64_t> messagesRead_ = 0;
    std::atomic<bool> broken_ = false;
};

}  // namespace libreoffice
