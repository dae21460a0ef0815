#include "player/suggest.h"

#include <algorithm>
#include <cctype>

namespace player {
namespace {

constexpr unsigned kEdit = 2;
constexpr unsigned kOtherCase = 1;
constexpr std::size_t kLongest = 64;

unsigned ReplaceCost(char a, char b) {
  if (a == b) return 0;
  const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  return lower(a) == lower(b) ? kOtherCase : kEdit;
}

// Returns the edit distance of `a` and `b`. An edit inserts, removes or replaces a character, or swaps two neighbours.
unsigned Distance(std::string_view a, std::string_view b) {
  unsigned rows[3][kLongest + 1] = {};  // the last three rows of the table, used in turn
  for (unsigned j = 0; j <= b.size(); ++j) rows[0][j] = j * kEdit;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    unsigned* row = rows[i % 3];
    const unsigned* above = rows[(i + 2) % 3];
    const unsigned* aboveThat = rows[(i + 1) % 3];
    row[0] = static_cast<unsigned>(i) * kEdit;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      row[j] = std::min({above[j] + kEdit, row[j - 1] + kEdit, above[j - 1] + ReplaceCost(a[i - 1], b[j - 1])});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        row[j] = std::min(row[j], aboveThat[j - 2] + kEdit);
    }
  }
  return rows[a.size() % 3][b.size()];
}

}  // namespace

Suggestion::Suggestion(std::string_view wrong)
    : wrong_(wrong.substr(0, kLongest)), bestDistance_(kEdit * (static_cast<unsigned>(wrong_.size()) / 5 + 1)) {}

void Suggestion::Consider(std::string_view name) {
  if (name.size() > kLongest) return;
  const unsigned distance = Distance(wrong_, name);
  const bool better = best_.empty() ? distance <= bestDistance_
                                    : distance < bestDistance_ || (distance == bestDistance_ && name < best_);
  if (!better) return;
  best_ = name;
  bestDistance_ = distance;
}

std::string Suggestion::Text() const {
  return best_.empty() ? std::string() : "; did you mean " + std::string(best_) + "?";
}

}  // namespace player
