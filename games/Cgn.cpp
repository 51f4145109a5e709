#include "games/Cgn.h"

#include <algorithm>
#include <charconv>

namespace {

GameFileError CgnErrorAt(Damage damage, size_t offset) { return {MovesFile, damage, static_cast<int32_t>(offset)}; }

std::string WriteMovetext(const MoveLists& lists) {
    std::string text;
    const size_t rows = std::max(lists[White].Moves(), lists[Black].Moves());
    for (size_t row = 0; row < rows; ++row) {
        for (const Side side : BothSides) {
            if (row >= lists[side].Moves()) continue;
            text += std::to_string(row + 1);
            text += side == White ? ". " : "... ";
            text += lists[side].Entries()[row].Text;
            text += ' ';
        }
    }
    text += ResultToken(lists);
    return text;
}

constexpr std::string_view Gaps = " \r\n";

// Where the movetext begins: after the empty line that ends the head, at the first "1. " where something other than a
// number or an end mark is there. Npos without an empty line.
size_t FindMovetext(std::string_view bytes) {
    constexpr std::string_view headEnd = "\r\n\r", firstMove = "1. ", beginnings = "0123456789*";
    const size_t head = bytes.find(headEnd);
    if (head == std::string_view::npos) return head;
    const size_t start = std::min(bytes.find_first_not_of(Gaps, head), bytes.size());
    if (start < bytes.size() && beginnings.find(bytes[start]) != std::string_view::npos) return start;
    const size_t move = bytes.find(firstMove, start);
    return move == std::string_view::npos ? start : move;
}

// The words of a text one after the other, with the places where they are.
class Words {
  public:
    Words(std::string_view bytes, size_t start) : bytes(bytes), end(start) {}

    // The next word; empty at the end, where Start is the text's length.
    std::string_view Next() {
        start = std::min(bytes.find_first_not_of(Gaps, end), bytes.size());
        end = std::min(bytes.find_first_of(Gaps, start), bytes.size());
        return bytes.substr(start, end - start);
    }
    size_t Start() const { return start; }

  private:
    std::string_view bytes;
    size_t start = 0;
    size_t end;
};

// The end of the movetext that a word makes, told by its first characters; nothing for any other word.
std::optional<std::string_view> EndMark(std::string_view word) {
    if (word.starts_with("1-")) return "1-0";
    if (word.starts_with("0-")) return "0-1";
    if (word.starts_with("1/")) return "1/2-1/2";
    if (word.starts_with("*")) return "*";
    return std::nullopt;
}

struct MoveNumber {
    size_t Number;
    Side Mover;
};

std::optional<MoveNumber> ReadMoveNumber(std::string_view word) {
    size_t number = 0;
    const auto [rest, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc()) return std::nullopt;
    const std::string_view dots = word.substr(static_cast<size_t>(rest - word.data()));
    if (dots == ".") return MoveNumber{number, White};
    if (dots == "...") return MoveNumber{number, Black};
    return std::nullopt;
}

Side ListOfResult(Side sideToMove, const MoveLists& lists) {
    const Side mover = Other(sideToMove);
    const auto last = lists[mover].LastWritten();
    return last && lists[mover].Entries()[*last].Text.ends_with('#') ? mover : sideToMove;
}

}  // namespace

std::string EncodeCgn(const GameHead& head, const MoveLists& lists) {
    return EncodeHead(head, ResultToken(lists)) + "\r" + WriteMovetext(lists);
}

std::optional<GameFileError> DecodeCgn(std::string_view bytes, Side sideToMove, MoveLists& lists) {
    const size_t start = FindMovetext(bytes);
    if (start == std::string_view::npos) return CgnErrorAt(Damage::NoHead, bytes.size());

    MoveLists read;
    Words words(bytes, start);
    while (true) {
        const std::string_view word = words.Next();
        if (word.empty()) return CgnErrorAt(Damage::EndsEarly, words.Start());
        if (const auto mark = EndMark(word)) {
            if (*mark != "*") read[ListOfResult(sideToMove, read)].AddResult(*mark);
            if (!words.Next().empty()) return CgnErrorAt(Damage::UnexpectedText, words.Start());
            lists = std::move(read);
            return std::nullopt;
        }
        const auto number = ReadMoveNumber(word);
        if (!number) return CgnErrorAt(Damage::UnexpectedText, words.Start());
        MoveList& list = read[number->Mover];
        if (number->Number != list.Moves() + 1) return CgnErrorAt(Damage::WrongNumber, words.Start());
        // Where the text ends here, the next word is missing too.
        list.SetText(list.AddWaiting(), std::string(words.Next()));
    }
}
