#pragma once

#include "platform/Dialog.h"

#include <string>

// Asks for the name under which the setup dialog keeps a time control.
class frmKeepAs : public Dialog {
  public:
    explicit frmKeepAs(const Surroundings& around)
        : Dialog(around, {around.System.Look.BackgroundColour, Look::Card}) {}

    // Shows a name to begin with. Throws SystemError.
    void Open(HWND owner, const std::wstring& name);

    // Empty unless OK took a name.
    const std::wstring& Name() const { return chosen; }

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DefaultButton() const override;
    std::wstring SpokenName(int id) const override;
    void OnOk();

    std::wstring chosen;
};
