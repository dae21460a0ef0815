// "Did you mean": the name that is most like a wrong one.
#pragma once

#include <string>
#include <string_view>

namespace player {

// Looks for the name that is most like `wrong` among those that it is given.
class Suggestion {
 public:
  explicit Suggestion(std::string_view wrong);

  // `name` must stay alive.
  void Consider(std::string_view name);

  // Returns "; did you mean NAME?" with the best name, or an empty string if none is similar.
  std::string Text() const;

  // Returns the best name, or an empty one if none is similar. Of equally good ones it is the first in the alphabet.
  std::string_view Best() const { return best_; }

 private:
  std::string_view wrong_;
  std::string_view best_;
  unsigned bestDistance_;
};

}  // namespace player
