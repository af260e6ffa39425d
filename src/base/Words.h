#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quendle {

// The words of a message or a statement, numbered from 1. Reading a word that isn't there is
// fatal and names the text.
class Words {
 public:
  Words(std::string_view text, char delimiter);

  std::size_t Count() const { return words_.size(); }
  bool Empty() const { return words_.empty(); }
  const std::string& operator[](std::size_t number) const;
  // Word `number` and the further words, joined with the delimiter. Fatal if the word is missing.
  std::string Tail(std::size_t number) const;

 private:
  std::string text_;
  char delimiter_;
  std::vector<std::string> words_;
};

}  // namespace quendle
