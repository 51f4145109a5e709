#pragma once

// A size in pixels.
struct Extent {
    int Width, Height;
};

// A rectangle in pixels.
struct Box {
    int Left = 0, Top = 0, Width = 0, Height = 0;
    bool operator==(const Box&) const = default;
    int Right() const { return Left + Width; }
    int Bottom() const { return Top + Height; }
};
