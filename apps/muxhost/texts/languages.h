#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "muxhost/host_session.h"
#include "muxhost/texts/language.h"

namespace quorvel::muxhost {

/// A language as it was asked for.
struct ChosenLanguage {
  std::shared_ptr<const Language> language;  ///< none: English
  std::vector<std::string> findings;         ///< of a file of the user's own, a sentence each
};

/// What a user can ask for, in words.
[[nodiscard]] std::string LanguageChoices();

/// The language of a code ("de", "en"), of the system ("system"), or of a user's own file in JSON.
/// `locales` are those of the system, the preferred one first, as "de-AT" or "de_AT.UTF-8"; a
/// language that there is not is English. Throws std::runtime_error for a file that cannot be read
/// or holds no language.
[[nodiscard]] ChosenLanguage ChooseLanguage(const std::string& request,
                                            std::span<const std::string> locales);

/// The locales that the environment asks for.
[[nodiscard]] std::vector<std::string> LocalesOfEnvironment();

/// Gives the texts of a language, or of English, to a session's control; a new control comes with
/// them. `platform` is the session's.
void Speak(Platform& platform, HostSession& session, std::shared_ptr<const Language> language);

}  // namespace quorvel::muxhost
