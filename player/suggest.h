// Finds the name for "did you mean".
#pragma once

#include <string>
#include <string_view>

namespace player {

// Finds the most similar name to `wrong` among the candidates.
class Suggestion {
 public:
  explicit Suggestion(std::string_view wrong);

  // Adds a candidate. `name` must outlive this object.
  void Consider(std::string_view name);

  // Returns "; did you mean NAME?" with the best name, or an empty string if none is similar.
  std::string Text() const;

  // Returns the most similar candidate, or an empty string if none is similar. Of several, returns the first in
  // alphabetical order.
  std::string_view Best() const { return best_; }

 private:
  std::string_view wrong_;
  std::string_view best_;
  unsigned bestDistance_;
};

}  // namespace player
