#pragma once

#include "forms/form.h"
#include "forms/item.h"

namespace quillomat {

/// Shows the hourglass over a form, and one of its hidden labels, until the end of the scope.
class WaitNotice {
  public:
    WaitNotice(Form& form, Item& text) : hourglass_(form), text_(text) { text_.set_visible(true); }
    ~WaitNotice() { text_.set_visible(false); }
    WaitNotice(const WaitNotice&) = delete;
    WaitNotice& operator=(const WaitNotice&) = delete;

  private:
    Hourglass hourglass_;
    Item& text_;
};

}  // namespace quillomat
