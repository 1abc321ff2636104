// Loading of several boxes at once.
#pragma once

/// While it exists, boxes are being filled and no results are computed from an incomplete set.
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
