#pragma once

#include <QBoxLayout>
#include <memory>
#include <utility>
#include <vector>

#include "platform/qt/control_view.h"
#include "quorvel/widgets/layout.h"

namespace quorvel::qt {

/// Makes the toolkit's widgets for a layout, one view a control.
class ViewBuilder {
 public:
  explicit ViewBuilder(VerbsUnderWay& verbs) : verbs_(verbs) {}

  /// Fills a container with what the layout tells.
  void Build(const Layout& layout, QWidget& container);
  [[nodiscard]] std::vector<std::unique_ptr<ControlView>> TakeViews() { return std::move(views_); }
  [[nodiscard]] VerbsUnderWay& Verbs() { return verbs_; }

 private:
  /// `line_height` is that of the lines around, or 0.
  QBoxLayout* BuildBox(const Layout& layout, QWidget& container, int line_height);
  QWidget& MakeView(Widget& model, QWidget& container);

  VerbsUnderWay& verbs_;
  int line_height_ = 0;
  std::vector<std::unique_ptr<ControlView>> views_;
};

}  // namespace quorvel::qt
