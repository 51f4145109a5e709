#pragma once

#include "platform/Form.h"
#include "recorder/Recorder.h"

#include <optional>

// The drop-down list in which the players declare check, mate, resignation and draw. It shows no entry while it is
// closed, so that the same entry can be chosen again.
class SayList {
  public:
    // The form must outlive the list.
    explicit SayList(Form& form) : form(form) {}

    void Create();
    // To be called at first and whenever the list opens: the keys then begin before the first entry, and not where they
    // ended last time.
    void Fill(const Texts& texts) const;

    // What a notification of the list declares; no value for most notifications.
    std::optional<Declaration> OnNotification(int notification) const;

  private:
    static LRESULT CALLBACK Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR reference);

    Form& form;
};
