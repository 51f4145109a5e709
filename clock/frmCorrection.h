#pragma once

#include "clock/Correction.h"
#include "platform/Dialog.h"

#include <optional>

// What an arbiter sets on a paused clock: the times and the move numbers of both sides. OK takes them when the clock
// could have come to them, and says otherwise what is wrong.
class frmCorrection : public Dialog {
  public:
    // `names` are those of the panels. The state must outlive the dialog.
    frmCorrection(const Surroundings& around, const modClock::ClockState& state,
                  const std::array<std::wstring, 2>& names)
        : Dialog(around, {Look::Card, Look::Card}), state(state), names(names) {}

    // Throws SystemError.
    void Open(HWND owner);

    // What has been set, once it was closed by OK.
    const std::optional<Correction>& Accepted() const { return accepted; }

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DefaultButton() const override;
    std::wstring SpokenName(int id) const override;

    TextId TimeCaption() const;
    void OnOk();
    // Tells what is wrong with a field, and puts the focus there.
    void Refuse(int field, const std::wstring& what) const;

    const modClock::ClockState& state;
    const std::array<std::wstring, 2> names;
    std::optional<Correction> accepted;
};
