#pragma once

#include <gtest/gtest.h>

#include <string>

namespace quorvel {

/// A path for files of the running test alone: tests run side by side.
inline std::string TempPath(const std::string& name) {
  const auto* const test = ::testing::UnitTest::GetInstance()->current_test_info();
  return ::testing::TempDir() + "quorvel_" + test->test_suite_name() + "_" + test->name() + "_" +
         name;
}

}  // namespace quorvel
