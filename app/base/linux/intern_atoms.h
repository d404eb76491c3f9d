// internAtoms: X atoms by name in one round trip: every request is sent before the first reply
// is waited for, instead of a round trip per name.
#pragma once

#include <xcb/xcb.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/linux/xcb_reply.h"

namespace tindra {

// The atoms of `names`, in their order; XCB_ATOM_NONE where the server gave no answer.
template <std::size_t N>
std::array<xcb_atom_t, N> internAtoms(xcb_connection_t* connection,
                                      const std::array<std::string_view, N>& names) {
  std::array<xcb_intern_atom_cookie_t, N> cookies{};
  for (std::size_t i = 0; i < N; ++i) {
    cookies[i] = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(names[i].size()),
                                 names[i].data());
  }
  std::array<xcb_atom_t, N> atoms{};
  for (std::size_t i = 0; i < N; ++i) {
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookies[i], nullptr));
    atoms[i] = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
  }
  return atoms;
}

}  // namespace tindra
