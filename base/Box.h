#pragma once

// A rectangle in pixels.
struct Box {
    int left = 0, top = 0, width = 0, height = 0;
    int Right() const { return left + width; }
    int Bottom() const { return top + height; }
};
