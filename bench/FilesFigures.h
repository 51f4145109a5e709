#pragma once

// Milliseconds that the file dialog takes with many saved games, in the real program and while its clock runs.
struct FilesTimes {
    double Open;    // from the menu's command until the dialog is drawn, median of 9
    double Choose;  // from the choice in the list until the game is read and its summary is set, median of 9
    double Save;    // from Yes until the dialog is gone
    double Delete;  // from Yes until the list lacks the game
};
FilesTimes MeasureFiles(int games);
