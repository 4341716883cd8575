#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "apps/muxhost/script_runner.h"

namespace quorvel::muxhost {

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

inline Outcome RunScript(const std::string& script) {
  std::istringstream in(script);
  std::ostringstream out;
  std::ostringstream err;
  const int status = ScriptRunner(in, out, err).Run();
  return {status, out.str(), err.str()};
}

inline void ExpectOutput(const std::string& script, const std::string& expected) {
  const Outcome outcome = RunScript(script);
  EXPECT_EQ(outcome.err, "") << script;
  EXPECT_EQ(outcome.status, 0) << script;
  EXPECT_EQ(outcome.out, expected) << script;
}

}  // namespace quorvel::muxhost
