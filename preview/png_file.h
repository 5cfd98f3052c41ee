// PNG, favouring speed over size.
#pragma once

#include "offscreen.h"

#include <memory>

// Makes the bytes of a PNG file while its rows come in. Everything throws std::runtime_error when libpng
// fails.
class PngEncoder {
  public:
    // Of a picture of so many pixels.
    PngEncoder(int width, int height);
    ~PngEncoder();

    // Takes the next rows, from the top. Returns the bytes that the file goes on with.
    std::vector<std::uint8_t> add(const Picture &rows);

    // The last bytes, after all rows.
    std::vector<std::uint8_t> end();

  private:
    struct State;
    std::unique_ptr<State> state;
};
