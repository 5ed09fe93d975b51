#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_ENUMERATOR_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_ENUMERATOR_H_

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <utility>
#include <vector>

#include "com.h"
#include "module.h"

namespace ZQ7Windows {

/// An enumeration of automation over a copy of `items`. `Kind` has the interface, its identifier,
/// what is kept of an item, what the interface gives of it, and `Give`, which makes that.
template <typename Kind>
class Enumerator final : public Kind::Interface {
 public:
  using Item = typename Kind::Item;
  using Given = typename Kind::Given;

  explicit Enumerator(std::vector<Item> items, std::size_t next = 0)
      : items_(std::move(items)), next_(next) {}

  STDMETHODIMP QueryInterface(REFIID id, void** found) override {
    if (found == nullptr) return E_POINTER;
    const bool known = id == IID_IUnknown || id == Kind::Id();
    *found = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  STDMETHODIMP Next(ULONG count, Given* given, ULONG* fetched) override {
    if (given == nullptr || (fetched == nullptr && count != 1)) return E_POINTER;
    const auto ready = std::min<std::size_t>(count, items_.size() - next_);
    for (std::size_t i = 0; i < ready; ++i) given[i] = Kind::Give(items_[next_ + i]);
    next_ += ready;
    if (fetched != nullptr) *fetched = static_cast<ULONG>(ready);
    return ready == count ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    const auto ready = std::min<std::size_t>(count, items_.size() - next_);
    next_ += ready;
    return ready == count ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(typename Kind::Interface** made) override {
    if (made == nullptr) return E_POINTER;
    *made = new Enumerator(items_, next_);
    return S_OK;
  }

 private:
  ~Enumerator() = default;

  LiveMark live_;
  std::atomic<ULONG> references_ = 1;
  std::vector<Item> items_;
  std::size_t next_;
};

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_ENUMERATOR_H_
