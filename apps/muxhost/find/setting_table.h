#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "muxhost/find/old_values.h"
#include "muxhost/find/setting_search.h"
#include "muxhost/host_session.h"

namespace quorvel::muxhost {

/// Which settings are listed.
enum class Among { kAll, kChanged, kNotFactory, kNotFile };

/// All settings of the control as an installer finds them. They are asked for when something may
/// have changed, and kept until then.
class SettingTable {
 public:
  /// The session must outlive the table.
  explicit SettingTable(HostSession& session) : session_(session) {}

  /// Takes over how things are now; false when nothing has changed.
  bool Update();
  /// Compares with the bytes of an image or a settings file from now on; nothing: with none.
  void CompareWith(std::optional<std::vector<Byte>> file);
  /// Why the file is not compared, in words; empty when it is, and without a file.
  [[nodiscard]] const std::string& Cause() const { return cause_; }
  [[nodiscard]] bool HasFile() const { return file_.has_value(); }

  /// In the order of the menu; none without an image.
  [[nodiscard]] const std::vector<SettingRow>& Rows() const { return rows_; }
  /// What the file has for a row; nothing where it has the same.
  [[nodiscard]] std::optional<std::string_view> InFile(const SettingRow& row) const {
    return in_file_.Of(row);
  }
  /// The numbers of rows to be listed, the nearest to the words first.
  [[nodiscard]] std::vector<std::size_t> List(Among among, std::string_view words) const;

 private:
  /// What tells whether something has changed: an edit raises no event.
  struct Seen {
    int generation;
    std::optional<Byte> unanswered;
    std::vector<Byte> image;
    std::vector<Byte> edited;
    std::vector<Byte> listed;
    bool operator==(const Seen&) const = default;
  };
  void CompareFile();

  HostSession& session_;
  std::optional<Seen> seen_;
  std::vector<SettingRow> rows_;
  SettingSearch search_{{}};
  std::optional<std::vector<Byte>> file_;
  std::string cause_;
  OldValues in_file_;
};

}  // namespace quorvel::muxhost
