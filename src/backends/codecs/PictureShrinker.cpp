#include "backends/codecs/PictureShrinker.h"

#include <algorithm>

namespace quendle {

PictureShrinker::PictureShrinker(Size from, PictureLimit limit) {
  const int longest = std::max(from.width, from.height);
  if (longest > limit.most) factor_ = (longest - 1) / limit.wanted + 1;
  columns_ = std::min(factor_, from.width);
  rows_ = std::min(factor_, from.height);
  height_ = std::max(from.height / factor_, 1);
  picture_.size = {std::max(from.width / factor_, 1), height_};
  picture_.words.reserve(static_cast<std::size_t>(picture_.size.width) *
                         static_cast<std::size_t>(height_));
  if (factor_ > 1) sums_.resize(static_cast<std::size_t>(picture_.size.width));
}

void PictureShrinker::AddRow(std::span<const std::uint32_t> words) {
  if (factor_ == 1) {
    picture_.words.insert(picture_.words.end(), words.begin(), words.end());
    return;
  }
  if (rows_added_ == height_ * rows_) return;
  AddToSums(words);
  if (++rows_added_ % rows_ == 0) WriteSums();
}

void PictureShrinker::AddToSums(std::span<const std::uint32_t> words) {
  const auto columns = static_cast<std::size_t>(columns_);
  for (std::size_t block = 0; block < sums_.size(); ++block) {
    for (const std::uint32_t word : words.subspan(block * columns, columns)) {
      sums_[block].red += word >> 16 & 255;
      sums_[block].green += word >> 8 & 255;
      sums_[block].blue += word & 255;
    }
  }
}

void PictureShrinker::WriteSums() {
  const auto count = static_cast<std::uint64_t>(columns_) * static_cast<std::uint64_t>(rows_);
  const auto mean = [count](std::uint64_t sum) {
    return static_cast<std::uint32_t>((sum + count / 2) / count);
  };
  for (Sum& sum : sums_) {
    picture_.words.push_back(mean(sum.red) << 16 | mean(sum.green) << 8 | mean(sum.blue));
    sum = {};
  }
}

}  // namespace quendle
