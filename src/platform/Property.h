// A value that a view can follow: how every control notifies its view and its form of a change.
#pragma once

#include <functional>
#include <utility>

/// Assigning an equal value does nothing; any other is stored, shown by the view, and then raises the event.
/// Both calls are optional: without a screen there is no view, and most properties have no event.
template <class T>
class Property {
 public:
  Property() = default;
  explicit Property(T initial) : value_(std::move(initial)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property&) = delete;

  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    if (View) View();
    if (Event) Event();
    return *this;
  }

  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor): reads like the value
  const T& Get() const { return value_; }

  std::function<void()> View;
  std::function<void()> Event;

 private:
  T value_{};
};
