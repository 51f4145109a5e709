#pragma once

#include "base/AsciiCase.h"
#include "recorder/Recorder.h"
#include "tests/base/Rows.h"

#include <algorithm>

// A position of pieces, "WKe1 BRh8".
inline Board Position(const std::string& pieces) {
    Board board;
    for (int index = 11; index <= 88; ++index) board.Put(Square{index}, Piece::Empty);
    for (const std::string& word : Words(pieces))
        board.Put(SquareNamed(word.substr(2)), *PieceOfCode(word.substr(0, 2)));
    return board;
}

// The captured pieces with their slots: "WP0 BQ0 BP7".
inline std::string TrayText(const Board& board) {
    std::string text;
    for (int number = 0; number < 2 * SlotsPerSide; ++number) {
        const auto [piece, slot] = SlotOf(number);
        if (!board.CapturedShown(piece, slot)) continue;
        text += (text.empty() ? "" : " ") + std::string(PieceCode(piece)) + std::to_string(slot);
    }
    return text;
}

// The pieces by file and rank, then those in the trays with their slots: "WKe1 BRh8 WP0".
inline std::string BoardText(const Board& board) {
    std::string text;
    for (int index = 11; index <= 88; ++index) {
        const Piece piece = board.At(Square{index});
        if (piece == Piece::Empty) continue;
        text += std::string(PieceCode(piece)) + FileLetter(Square{index}) + RankDigit(Square{index}) + " ";
    }
    return text + TrayText(board);
}

// A missing move is shortened: "1. _".
inline std::string Shortened(std::string text) {
    for (size_t at; (at = text.find(MissingMove)) != std::string::npos;) text.replace(at, MissingMove.size(), "_");
    return text;
}

// The two lists as they are shown, a result in brackets: "1. e4|[0-1] / 1. _".
inline std::string ListText(const MoveLists& lists) {
    std::string text;
    for (const Side side : BothSides) {
        for (size_t i = 0; i < lists[side].Entries().size(); ++i) {
            const std::string line = lists[side].Line(i, side);
            text += (i > 0 ? "|" : "") + (lists[side].Entries()[i].IsResult() ? "[" + line + "]" : line);
        }
        text += side == White ? " / " : "";
    }
    return Shortened(text);
}

// Does what the words say: moves ("e2e4", "b7a8q"), the piece of a promotion ("=Q"), declarations and missing lines
// with the clock's counts where they matter ("check", "draw2,1", "top3,3"), going on at the clock's move ("go3,2W"), a
// fallen flag ("flagW"), the presses that make a side run ("first", "pressB"), edits ("W0=Nf3"), "deleteB", a captured
// piece put back ("WP0@e5"), "reset". Returns the lines that the last word reports, " W1 B0".
inline std::string Do(Recorder& recorder, const std::string& script) {
    const std::array<std::string, 4> declarations{"check", "mate", "resign", "draw"};
    std::array<std::optional<size_t>, 2> lines;
    for (const std::string& word : Words(script)) {
        const size_t sign = word.find_first_of("=@"), number = word.find_first_of("0123456789"), comma = word.find(',');
        const char mark = sign == std::string::npos ? ' ' : word[sign];
        const Side ofFirst = word.front() == 'W' ? White : Black, ofLast = word.back() == 'W' ? White : Black;
        const std::string name = word.substr(0, number), end = word.substr(sign + 1);
        const auto declared = std::ranges::find(declarations, name);
        std::array<int32_t, 2> counts{};
        std::optional<ChosenLine> line;
        if (comma != std::string::npos) counts = {std::stoi(word.substr(number)), std::stoi(word.substr(comma + 1))};
        lines = {};
        if (declared != declarations.end())
            lines = recorder.Declare(static_cast<Declaration>(declared - declarations.begin()), counts);
        if (name == "go") lines = recorder.GoOn(counts, ofLast);
        if (name == "top") lines = recorder.TopUpMoveLists(counts);
        if (word == "reset") recorder.Reset();
        if (word.starts_with("flag")) recorder.FlagFell(ofLast);
        if (word.starts_with("delete")) recorder.DeleteLast(ofLast);
        if (word == "first") line = recorder.AddLineForPress(true, White);
        if (word.starts_with("press")) line = recorder.AddLineForPress(false, ofLast);
        if (sign == 0) recorder.Promote(KindOfLetter(word[1]));
        if (number == 1 && mark == ' ')
            line = recorder.Play(SquareNamed(word.substr(0, 2)), SquareNamed(word.substr(2, 2)));
        if (number == 1 && mark == '=') recorder.Edit(ofFirst, std::stoul(word.substr(1)), end);
        if (mark == '@') recorder.PutBack(*PieceOfCode(word.substr(0, 2)), word[2] - '0', SquareNamed(end));
        if (line) lines[line->List] = line->Index;
        if (number == 1 && word.size() == 5) recorder.Promote(KindOfLetter(AsciiUpper(word[4])));
    }
    return (lines[White] ? " W" + std::to_string(*lines[White]) : "") +
           (lines[Black] ? " B" + std::to_string(*lines[Black]) : "");
}

inline Recorder Played(const std::string& script) {
    Recorder recorder;
    Do(recorder, script);
    return recorder;
}
