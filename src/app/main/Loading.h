// Filling several boxes together.
#pragma once

/// While it lives, boxes are being filled and nothing is computed from half of them.
class Loading {
 public:
  explicit Loading(bool& loading) : loading_(loading), before_(loading) { loading_ = true; }
  ~Loading() { loading_ = before_; }
  Loading(const Loading&) = delete;
  Loading& operator=(const Loading&) = delete;

 private:
  bool& loading_;
  bool before_;
};
