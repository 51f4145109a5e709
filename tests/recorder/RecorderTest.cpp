#include "recorder/Recorder.h"

#include "tests/recorder/RecordText.h"

namespace {

// The lists, the text with its pending part, the side to move, what waits for its promotion, the trays, and the lines
// that the last word reports.
std::string State(const std::string& script) {
    Recorder recorder;
    const std::string lines = Do(recorder, script);
    const std::string trays = TrayText(recorder.Position());
    return ListText(recorder.Lists()) + "; " + Shortened(recorder.RunningText() + "<" + recorder.PendingText() + ">") +
           (recorder.SideToMove() == White ? " White" : " Black") + (recorder.AwaitsPromotion() ? " promotes" : "") +
           (trays.empty() ? "" : " x " + trays) + (lines.empty() ? "" : " at" + lines);
}

}  // namespace

TEST(RecorderTest, Scripts) {
    ExpectRows(State, R"(
        =>  / ; <> White
        Moves go into the list of the side to move, whatever the piece's colour.
        e2e4 => 1. e4 / ; <1. e4 > Black at W0 | e2e4 e7e5 g1f3 => 1. e4|2. Nf3 / e5; 1. e4 e5 <2. Nf3 > Black at W1
        e2e4 e7e5 g1f3 f3e5 => 1. e4|2. Nf3 / e5|Nxe5; 1. e4 e5 2. Nf3 <Nxe5 > White x BP0 at B1
        e2e4 mate b7b5 reset =>  / ; <> White
        A press gives the side that then runs its line.
        first => 1. _ / ; <> White at W0 | first first => 1. _ / ; <> White | first pressB => 1. _ / ; <> White
        first e2e4 pressB => 1. e4 / 1. _; <1. e4 > Black at B0 | flagW first => [0-1] / ; 0-1<> White
        first e2e4 pressB pressB => 1. e4 / 1. _; <1. e4 > Black
        e2e4 e7e5 pressW => 1. e4|2. _ / e5; 1. e4 <e5 > White at W1
        e2e4 e7e5 draw pressB => 1. e4|[1/2-1/2] / e5; 1. e4 e5 1/2-1/2<> White
        Missing lines: up to the counts, White's up to Black's, before a result.
        top3,2 => 1. _|2. _|3. _ / 1. _|2. _; <> White at W2 B1 | e2e4 e7e5 top1,1 => 1. e4 / e5; 1. e4 <e5 > White
        top3,2 e2e4 e7e5 => 1. e4|2. _|3. _ / e5|2. _; 1. e4 <e5 > White at B0 | top0,1 top0,-1 => 1. _ / 1. _; <> White
        e2e4 e7e5 resign top2,3 => 1. e4|2. _|3. _|[0-1] / e5|2. _|3. _; 1. e4 e5 0-1<> White at W2 B2
        Going on at the clock's move passes over the lines that wait before it.
        go3,2W e2e4 => 1. _|2. _|3. e4 / 1. _|2. _; 1. _ _ 2. _ _ <3. e4 > Black at W2
        go3,2W e2e4 pressB e7e5 g1f3 => 1. _|2. _|3. e4|4. Nf3 / 1. _|2. _|e5; 1. _ _ 2. _ _ 3. e4 e5 <4. Nf3 > Black at W3
        go2,2B e7e5 g1f3 => 1. _|2. _|3. Nf3 / 1. _|e5; 1. _ _ 2. _ e5 <3. Nf3 > Black at W2
        e2e4 go3,3B c7c5 => 1. e4|2. _|3. _ / 1. _|2. _|c5; 1. e4 _ 2. _ _ 3. _ <c5 > White at B2
        e2e4 e7e5 go3,2W => 1. e4|2. _|3. _ / e5|2. _; 1. e4 <e5 > White at W2 B1
        go3,2W deleteW deleteW e2e4 => 1. _|2. e4 / 1. _|2. _; 1. _ _ <2. e4 > Black at W1
        go3,2W reset e2e4 => 1. e4 / ; <1. e4 > Black at W0
        Declarations mark the last move and end the game, once.
        check mate =>  / ; <> White | e2e4 check check => 1. e4+ / ; <1. e4+ > Black
        e2e4 check mate mate => 1. e4#|[1-0] / ; 1. e4# 1-0<> Black | flagW => [0-1] / ; 0-1<> White
        e2e4 mate check draw => 1. e4#|[1-0] / ; 1. e4# 1-0<> Black | e2e4 flagB => 1. e4 / [1-0]; 1. e4 1-0<> Black
        e2e4 e7e5 mate => 1. e4 / e5#|[0-1]; 1. e4 e5# 0-1<> White
        e2e4 mate e7e5 => 1. e4# / e5; 1. e4# <e5 > White at B0 | e2e4 draw e7e5 => 1. e4 / e5; 1. e4 <e5 > White at B0
        e2e4 resign2,1 => 1. e4|2. _ / 1. _|[1-0]; 1. e4 1-0<> Black at W1 B0
        e2e4 e7e5 draw2,1 => 1. e4|2. _|[1/2-1/2] / e5; 1. e4 e5 1/2-1/2<> White at W1
        Lines that wait before a result are filled, and it stays; so it does after a flag has fallen.
        e2e4 resign2,2 e7e5 => 1. e4|2. _ / e5|2. _|[1-0]; 1. e4 e5 1-0<> White at B0
        e2e4 draw2,2 e7e5 g1f3 => 1. e4|2. Nf3 / e5|2. _|[1/2-1/2]; 1. e4 e5 2. Nf3 1/2-1/2<> Black at W1
        e2e4 draw2,1 e7e5 g1f3 => 1. e4|2. Nf3 / e5|[1/2-1/2]; 1. e4 e5 2. Nf3 1/2-1/2<> Black at W1
        e2e4 draw2,2 e7e5 g1f3 b8c6 => 1. e4|2. Nf3 / e5|Nc6|[1/2-1/2]; 1. e4 e5 2. Nf3 Nc6 1/2-1/2<> White at B1
        e2e4 draw2,2 e7e5 g1f3 b8c6 f1b5 => 1. e4|2. Nf3|3. Bb5 / e5|Nc6; 1. e4 e5 2. Nf3 Nc6 <3. Bb5 > Black at W2
        top1,0 flagB e2e4 e7e5 g1f3 => 1. e4|2. Nf3|[1-0] / e5; 1. e4 e5 2. Nf3 1-0<> Black at W1
        flagB reset draw e2e4 => 1. e4 / ; <1. e4 > Black at W0
        A waiting line whose reply is written is passed over, and awaits nothing.
        e2e4 e7e5 g1f3 W1= b8c6 f1b5 => 1. e4|2. _|3. Bb5 / e5|Nc6; 1. e4 e5 2. _ Nc6 <3. Bb5 > Black at W2
        e2e4 e7e5 g1f3 W1= b8c6 pressW => 1. e4|2. _|3. _ / e5|Nc6; 1. e4 e5 2. _ <Nc6 > White at W2
        e2e4 e7e5 B0= g1f3 b8c6 => 1. e4|2. Nf3 / 1. _|Nc6; 1. e4 _ 2. Nf3 <Nc6 > White at B1
        e2e4 e7e5 g1f3 b8c6 W1= B1= f1b5 => 1. e4|2. Bb5 / e5|2. _; 1. e4 e5 <2. Bb5 > Black at W1
        e2e4 e7e5 g1f3 W1= b8c6 draw f1b5 => 1. e4|2. _|3. Bb5 / e5|Nc6; 1. e4 e5 2. _ Nc6 <3. Bb5 > Black at W2
        Lines that are added before the last move belong to the text.
        e2e4 e7e5 g1f3 deleteW b8c6 pressW => 1. e4|2. _ / e5|Nc6; 1. e4 e5 2. _ <Nc6 > White at W1
        e2e4 e7e5 g1f3 deleteW b8c6 top0,0 => 1. e4|2. _ / e5|Nc6; 1. e4 e5 2. _ <Nc6 > White at W1
        e2e4 e7e5 g1f3 deleteB b8c6 pressB => 1. e4|2. Nf3 / Nc6|2. _; 1. e4 Nc6 <2. Nf3 > White at B1
        A promotion can be chosen again until the next move.
        e2e7 h7h6 e7f8 => 1. exe7|2. exf8 / h6; 1. exe7 h6 <2. exf8 > Black promotes x BB0 BP0 at W1
        e2e7 h7h6 e7f8 check =Q =N => 1. exe7|2. exf8=N+ / h6; 1. exe7 h6 <2. exf8=N+ > Black promotes x BB0 BP0
        e2e7 h7h6 e7f8q mate =R => 1. exe7|2. exf8=R#|[1-0] / h6; 1. exe7 h6 2. exf8=R# 1-0<> Black promotes x BB0 BP0
        e2e7 h7h6 e7f8 W1=f8= =R => 1. exe7|2. f8=R / h6; 1. exe7 h6 <2. f8=R > Black promotes x BB0 BP0
        e2e7 h7h6 e7f8 W1= =R => 1. exe7|2. _ / h6; 1. exe7 <h6 > Black promotes x BB0 BP0
        e2e7 h7h6 e7f8 deleteW =R => 1. exe7 / h6; 1. exe7 <h6 > Black promotes x BB0 BP0
        e2e7 h7h6 e7f8 deleteB =R => 1. exe7|2. exf8=R / ; 1. exe7 <2. exf8=R > Black promotes x BB0 BP0
        e2e7 h7h6 e7f8q h6h5 =R => 1. exe7|2. exf8=Q / h6|h5; 1. exe7 h6 2. exf8=Q <h5 > White x BB0 BP0
        e2e4 =Q => 1. e4 / ; <1. e4 > Black
        Edits and deletions reach the text, and the board keeps no history.
        e2e4 e7e5 g1f3 B0=0-0 => 1. e4|2. Nf3 / O-O; 1. e4 O-O <2. Nf3 > Black
        e2e4 e7e5 g1f3 B0= => 1. e4|2. Nf3 / 1. _; 1. e4 _ <2. Nf3 > Black
        e2e4 e7e5 W1=Nf3 => 1. e4 / e5; 1. e4 <e5 > White | top1,0 W0=e4 => 1. e4 / ; <1. e4 > Black
        e2e4 e7e5 g1f3 W0=1-0 => 1. 1-0|2. Nf3 / e5; 1. 1-0 e5 <2. Nf3 > Black | top1,0 W0=1-0 => [1-0] / ; 1-0<> White
        e2e4 e7e5 g1f3 W1=1/2-1/2 => 1. e4|[1/2-1/2] / e5; 1. e4 e5 1/2-1/2<> Black | top1,0 W0= => 1. _ / ; <> White
        e2e4 e7e5 draw W1=1-0 => 1. e4|[1-0] / e5; 1. e4 e5 1-0<> White | top1,1 B0=c5 => 1. _ / c5; 1. _ <c5 > White
        e2e4 e7e5 draw B0=1-0 => 1. e4|[1/2-1/2] / 1-0; 1. e4 1-0 1/2-1/2<> White
        e2e4 e7e5 draw W1=nc3 => 1. e4|2. Nc3 / e5; 1. e4 e5 <2. Nc3 > White
        e2e4 top1,1 B0=c5 => 1. e4 / c5; 1. e4 <c5 > White | e2e4 e7e5 g1f3 deleteW => 1. e4 / e5; 1. e4 <e5 > Black
        e2e4 e7e5 g1f3 deleteW d7d6 b1c3 => 1. e4|2. Nc3 / e5|d6; 1. e4 e5 2. Nc3 <d6 > Black at W1
        e2e4 e7e5 deleteW =>  / e5; <1... e5 > White | e2e4 e7e5 deleteW deleteW deleteB deleteB =>  / ; <> White
        e2d7 c8d7 BP0@e2 => 1. exd7 / Bxd7; 1. exd7 <Bxd7 > White x WP0
        e2e4 d7d5 e4d5 BP0@h5 => 1. e4|2. exd5 / d5; 1. e4 d5 <2. exd5 > Black
    )");
    EXPECT_EQ(PieceCode(Played("e2d7 e8d7 BP0@h5").Position().At(SquareNamed("h5"))), "BP");
}
