// Texts of events that nobody wrote, with lengths as they are found in practice.
#pragma once

#include <string>
#include <string_view>

#include "bench/random_numbers.h"

namespace tessarine::bench {

enum class Language { English, German };

/// Half of the texts have at most 350 characters, 1 in 100 has more than 1,800, none has more than
/// 30,000. German ones hold umlauts of the console's code page.
class MessageTexts {
  public:
    explicit MessageTexts(Language language);

    /// The view holds as long as the object.
    std::string_view next(RandomNumbers& random) const;

  private:
    std::string pool_;
};

}  // namespace tessarine::bench
