#include "apps/quorvel/fleet.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <iostream>
#include <mutex>
#include <system_error>
#include <thread>

#include "apps/quorvel/trouble.h"

namespace quorvel::tool {

namespace {

/// Files that a thread takes at a time.
constexpr std::size_t kPortion = 32;

class Fleet {
 public:
  Fleet(std::size_t count, const std::function<Look()>& new_look)
      : told_(count), done_((count + kPortion - 1) / kPortion), new_look_(new_look) {}

  int Run(unsigned threads) {
    {
      std::vector<std::jthread> helpers;
      const std::size_t useful = std::min<std::size_t>(threads, done_.size());
      try {
        while (helpers.size() + 1 < useful) helpers.emplace_back([this] { Work(); });
      } catch (const std::system_error&) {  // the system has no more threads
      }
      Work();
    }
    return status_;
  }

 private:
  void Work() {
    Look look;
    for (std::size_t portion = next_++; portion < done_.size(); portion = next_++) {
      const std::size_t end = std::min(told_.size(), (portion + 1) * kPortion);
      for (std::size_t file = portion * kPortion; file < end; ++file) LookAt(file, look);
      const std::scoped_lock lock(printing_);
      done_[portion] = true;
      for (; printed_ < done_.size() && done_[printed_]; ++printed_) Print(printed_);
    }
  }
  void LookAt(std::size_t file, Look& look) {
    Told& told = told_[file];
    try {
      if (!look) look = new_look_();
      look(file, told);
    } catch (const std::exception& error) {
      told.err = std::string("quorvel: ") + error.what() + '\n';
      told.status = kTrouble;
    }
  }
  void Print(std::size_t portion) {
    const std::size_t end = std::min(told_.size(), (portion + 1) * kPortion);
    for (std::size_t file = portion * kPortion; file < end; ++file) {
      Told& told = told_[file];
      status_ = std::max(status_, told.status);
      if (!told.out.empty()) std::cout << told.out;
      if (!told.err.empty()) std::cerr << (std::cout.flush(), told.err);
      told = {};
    }
  }

  std::vector<Told> told_;
  std::atomic<std::size_t> next_ = 0;
  std::mutex printing_;
  std::vector<bool> done_;  ///< of each portion
  std::size_t printed_ = 0;
  const std::function<Look()>& new_look_;
  int status_ = kDone;
};

}  // namespace

int LookAtAll(std::size_t count, unsigned threads, const std::function<Look()>& new_look) {
  return Fleet(count, new_look).Run(threads);
}

}  // namespace quorvel::tool
