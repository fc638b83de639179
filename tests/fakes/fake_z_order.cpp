#include "tests/fakes/fake_z_order.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace korvale {
namespace {

bool Contains(const std::vector<WindowHandle>& windows, WindowHandle hwnd) {
  return std::ranges::find(windows, hwnd) != windows.end();
}

}  // namespace

FakeZOrder::FakeZOrder(FactsOf factsOf) : facts_of_(std::move(factsOf)) {}

void FakeZOrder::Add(WindowHandle hwnd) {
  order_.insert(order_.begin(), hwnd);
  SortBands();
}

void FakeZOrder::Remove(WindowHandle hwnd) { std::erase(order_, hwnd); }

void FakeZOrder::Raise(WindowHandle hwnd) {
  const std::vector<WindowHandle> first = WithOwned(hwnd);
  std::vector<WindowHandle> group = first;
  for (const WindowHandle other : WithOwned(WithOwners(hwnd).back())) {
    if (!Contains(first, other)) group.push_back(other);
  }
  Take(group);
  order_.insert(order_.begin(), group.begin(), group.end());
  SortBands();
}

void FakeZOrder::Lower(WindowHandle hwnd) {
  std::vector<WindowHandle> group = WithOwned(hwnd);
  for (WindowHandle owner = facts_of_(hwnd).owner; owner != 0; owner = facts_of_(owner).owner) {
    if (facts_of_(owner).visible) return;
    group.push_back(owner);
  }
  Take(group);
  order_.insert(order_.end(), group.begin(), group.end());
  SortBands();
}

std::vector<WindowHandle> FakeZOrder::WithOwned(WindowHandle hwnd) const {
  std::vector<WindowHandle> group;
  std::ranges::copy_if(order_, std::back_inserter(group),
                       [&](WindowHandle other) { return other == hwnd || IsOwnedBy(other, hwnd); });
  return group;
}

std::vector<WindowHandle> FakeZOrder::WithOwners(WindowHandle hwnd) const {
  std::vector<WindowHandle> chain;
  for (; hwnd != 0; hwnd = facts_of_(hwnd).owner) chain.push_back(hwnd);
  return chain;
}

bool FakeZOrder::IsOwnedBy(WindowHandle hwnd, WindowHandle owner) const {
  const std::vector<WindowHandle> chain = WithOwners(hwnd);
  return std::find(chain.begin() + 1, chain.end(), owner) != chain.end();
}

void FakeZOrder::Take(const std::vector<WindowHandle>& windows) {
  std::erase_if(order_, [&](WindowHandle hwnd) { return Contains(windows, hwnd); });
}

void FakeZOrder::SortBands() {
  std::ranges::stable_sort(order_, {}, [&](WindowHandle hwnd) {
    const Facts facts = facts_of_(hwnd);
    if (facts.topmost) return 0;
    return facts.atBottom ? 2 : 1;
  });
}

}  // namespace korvale
