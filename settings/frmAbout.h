#pragma once

#include "platform/Dialog.h"
#include "platform/Picture.h"

#include <array>

// The about box: four knights and what the version resource says. A click anywhere, Esc or Enter closes it.
class frmAbout : public Dialog {
  public:
    frmAbout(const Texts& texts, const MessageBoxes& messageBoxes, uint32_t background)
        : Dialog(texts, messageBoxes, background) {}

    // Throws SystemError.
    void Open(HWND owner);

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::array<Picture, 4> knights;
};
