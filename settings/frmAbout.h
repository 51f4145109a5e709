#pragma once

#include "platform/Dialog.h"
#include "platform/Picture.h"

#include <array>

// The about box: four knights and what the version resource says. A click anywhere, Esc or Enter closes it.
class frmAbout : public Dialog {
  public:
    explicit frmAbout(const Surroundings& around) : Dialog(around, {Look::Card, Look::Card}) {}

    // Throws SystemError.
    void Open(HWND owner);

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::array<Picture, 4> knights;
};
