// SPDX-License-Identifier: GPL-3.0-or-later
/// Asks the X server.
#include "desktop/ScreenProfile.h"
#include <QByteArray>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace zp
{

namespace
{

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <class Reply>
using Answer = std::unique_ptr<Reply, Free>;

/// Beyond this it is no profile of a screen.
constexpr std::uint32_t kMostBytes = 16u << 20;

} // namespace

std::vector<std::uint8_t> screenProfile(const QWidget& window)
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* const server = x11 ? x11->connection() : nullptr;
    if (!server) return {};
    const qsizetype number = std::max<qsizetype>(0, QGuiApplication::screens().indexOf(window.screen()));
    QByteArray name = "_ICC_PROFILE";
    if (number > 0) name += "_" + QByteArray::number(number);
    const Answer<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        server, xcb_intern_atom(server, 1, std::uint16_t(name.size()), name.constData()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE) return {};
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    const Answer<xcb_get_property_reply_t> property(xcb_get_property_reply(
        server, xcb_get_property(server, 0, root, atom->atom, XCB_GET_PROPERTY_TYPE_ANY, 0, kMostBytes / 4), nullptr));
    if (!property || property->format != 8 || property->bytes_after > 0) return {};
    const auto* bytes = static_cast<const std::uint8_t*>(xcb_get_property_value(property.get()));
    return {bytes, bytes + xcb_get_property_value_length(property.get())};
}

} // namespace zp
