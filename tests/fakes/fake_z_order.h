#pragma once

#include <functional>
#include <vector>

#include "platform/types.h"

namespace korvale {

/// The order of top-level windows, topmost first. Keeps Windows' rules: topmost windows above all
/// others, owned windows above their owner, the desktop's own window at the bottom.
class FakeZOrder {
 public:
  struct Facts {
    WindowHandle owner = 0;
    bool visible = false;
    bool topmost = false;
    bool atBottom = false;
  };
  using FactsOf = std::function<Facts(WindowHandle)>;

  /// `factsOf` answers for every window in the order.
  explicit FakeZOrder(FactsOf factsOf);

  const std::vector<WindowHandle>& Windows() const { return order_; }

  /// Puts a new window at the top of its band.
  void Add(WindowHandle hwnd);
  void Remove(WindowHandle hwnd);
  /// Brings a window with the windows that it owns to the top of their bands; its owners, with what
  /// else they own, follow right below.
  void Raise(WindowHandle hwnd);
  /// Sends a window with the windows that it owns to the bottom of its band. Hidden owners go down
  /// with it; with a visible one nothing moves.
  void Lower(WindowHandle hwnd);
  /// The window and all that it owns, directly or not, in their order.
  std::vector<WindowHandle> WithOwned(WindowHandle hwnd) const;
  /// The window, its owner, the owner's owner and so on.
  std::vector<WindowHandle> WithOwners(WindowHandle hwnd) const;

 private:
  bool IsOwnedBy(WindowHandle hwnd, WindowHandle owner) const;
  void Take(const std::vector<WindowHandle>& windows);
  void SortBands();

  FactsOf facts_of_;
  std::vector<WindowHandle> order_;
};

}  // namespace korvale
