#include "games/GameMessages.h"

std::wstring ReasonOf(const GameFileError& error, const Texts& texts) {
    const auto row = [&] {
        switch (error.rule) {
            case GameFileError::Rule::UnknownTag: return TextId::ReasonUnknownTag;
            case GameFileError::Rule::ShortRecord: return TextId::ReasonShortFile;
            case GameFileError::Rule::OutOfRange: return TextId::ReasonSlotOutOfRange;
            case GameFileError::Rule::Overflow: return TextId::ReasonSlotOverflow;
            case GameFileError::Rule::CountsOutOfStep: return TextId::ReasonCountsOutOfStep;
            case GameFileError::Rule::TurnAgainstCounts: return TextId::ReasonTurnAgainstCounts;
            case GameFileError::Rule::NoTimeLeft: return TextId::ReasonNoTimeLeft;
            case GameFileError::Rule::UnknownPiece: return TextId::ReasonUnknownPiece;
            case GameFileError::Rule::BrokenLine: return TextId::ReasonBrokenLine;
            case GameFileError::Rule::NoHead: return TextId::ReasonNoHead;
            case GameFileError::Rule::EndsEarly: return TextId::ReasonEndsEarly;
            case GameFileError::Rule::WrongNumber: return TextId::ReasonWrongNumber;
            case GameFileError::Rule::UnexpectedText: return TextId::ReasonUnexpectedText;
            case GameFileError::Rule::TooLong: break;
        }
        return TextId::ReasonTooLong;
    }();
    return texts.Compose(row, std::to_wstring(error.place), std::to_wstring(error.column));
}
