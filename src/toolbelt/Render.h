#pragma once

#include <string>

namespace quendle {

// `quendle render`: plays to a screen of the content tree and writes its picture as a PNG file.
// Nothing is written into the tree. Gives the exit code: 0, or 3 when the game ended fatally.
// Throws CommandRefused or PictureError when there is no such screen or the file can't be written.
int RenderScreen(const std::string& content, const std::string& screen,
                 const std::string& png_path);

}  // namespace quendle
