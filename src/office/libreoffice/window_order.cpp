#include "office/libreoffice/window_order.h"

#include <com/sun/star/awt/SystemDependentXWindow.hpp>
#include <com/sun/star/awt/XSystemDependentWindowPeer.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/lang/SystemDependent.hpp>
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace libreoffice {

namespace {

struct Release {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    void operator()(void* reply) const { std::free(reply); }
};
template <class Type>
using Held = std::unique_ptr<Type, Release>;

/// Null without a screen.
Held<xcb_connection_t> connectToScreen() {
    Held<xcb_connection_t> connection(xcb_connect(nullptr, nullptr));
    return xcb_connection_has_error(connection.get()) == 0 ? std::move(connection) : nullptr;
}

Held<xcb_query_tree_reply_t> treeOf(xcb_connection_t* connection, xcb_window_t window) {
    return Held<xcb_query_tree_reply_t>(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
}

/// The windows that the window manager lists, from the lowest; empty without one.
std::vector<std::uint32_t> managedWindows(xcb_connection_t* connection, xcb_window_t root) {
    constexpr std::string_view name = "_NET_CLIENT_LIST_STACKING";
    constexpr std::uint32_t most = 4096;
    const Held<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 1, name.size(), name.data()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE) return {};
    const Held<xcb_get_property_reply_t> list(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, most),
        nullptr));
    if (!list || list->format != 32) return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(list.get()));
    return {first, first + list->value_len};
}

xcb_window_t windowOf(const uno::Reference<css::frame::XController>& document) {
    if (!document.is()) return XCB_NONE;
    const auto peer =
        tryAs<css::awt::XSystemDependentWindowPeer>(document->getFrame()->getContainerWindow());
    if (!peer.is()) return XCB_NONE;
    // The suite asks for the caller's mark and compares it with nothing.
    css::awt::SystemDependentXWindow window;
    peer->getWindowHandle(uno::Sequence<sal_Int8>(16),
                          css::lang::SystemDependent::SYSTEM_XWINDOW) >>= window;
    return static_cast<xcb_window_t>(window.WindowHandle);
}

}  // namespace

WindowOrder WindowOrder::now() {
    WindowOrder order;
    const auto connection = connectToScreen();
    if (!connection) return order;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    order.fromLowest_ = managedWindows(connection.get(), root);
    if (!order.fromLowest_.empty()) return order;
    if (const auto tree = treeOf(connection.get(), root)) {
        const xcb_window_t* const first = xcb_query_tree_children(tree.get());
        order.fromLowest_.assign(first, first + xcb_query_tree_children_length(tree.get()));
    }
    return order;
}

std::optional<std::size_t> WindowOrder::placeOf(
    const uno::Reference<css::frame::XController>& document) const {
    if (fromLowest_.empty()) return std::nullopt;
    xcb_window_t window = windowOf(document);
    const auto connection = connectToScreen();
    // What the suite calls its window may lie within the one that the system stacks.
    while (connection && window != XCB_NONE) {
        const auto found = std::find(fromLowest_.begin(), fromLowest_.end(), window);
        if (found != fromLowest_.end())
            return static_cast<std::size_t>(found - fromLowest_.begin());
        const auto tree = treeOf(connection.get(), window);
        window = tree ? tree->parent : XCB_NONE;
    }
    return std::nullopt;
}

}  // namespace libreoffice
