// Tables of words that a text is tried on from the top: the first row that fits decides.
#pragma once

#include <cstddef>
#include <string_view>

#include "base/Text.h"

namespace quendle {

enum class Fit { kIs, kHolds };

// What a text is that is the word, or that holds it anywhere, case ignored.
template <class Answer>
struct FitRow {
  Fit fit;
  std::string_view word;
  Answer answer;

  bool Takes(std::string_view text) const {
    return fit == Fit::kHolds ? ContainsNoCase(text, word) : EqualsNoCase(text, word);
  }
};

template <class Answer, std::size_t kCount>
Answer FirstFit(const FitRow<Answer> (&rows)[kCount], std::string_view text, Answer otherwise) {
  for (const FitRow<Answer>& row : rows) {
    if (row.Takes(text)) return row.answer;
  }
  return otherwise;
}

}  // namespace quendle
