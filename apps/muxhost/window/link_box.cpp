#include "muxhost/window/link_box.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

LinkBox::LinkBox(QWidget* parent)
    : QWidget(parent),
      heading_(new QToolButton),
      kind_(new QComboBox),
      at_(new QSpinBox),
      delay_(new QSpinBox),
      arm_(new QPushButton(Tr("Arm"))),
      disarm_(new QPushButton(Tr("Disarm"))),
      form_(new QFormLayout),
      panel_(MakePanel()) {
  heading_->setObjectName("LinkHeading");
  heading_->setCheckable(true);
  heading_->setAutoRaise(true);
  heading_->setFocusPolicy(Qt::StrongFocus);
  heading_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  heading_->setText(Tr("Link"));
  heading_->setToolTip(Tr("Lets the link fail, to test how a host takes it"));
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(heading_);
  column->addWidget(panel_);
  QObject::connect(heading_, &QToolButton::toggled, this, [this](bool on) { Unfold(on); });
  Unfold(false);
  ShowPending(std::nullopt);
}

QWidget* LinkBox::MakePanel() {
  constexpr int kMostTraffic = 1000;
  constexpr int kLongestDelay = 60'000;
  for (int i = 0; i <= static_cast<int>(FaultKind::kClose); ++i) {
    const auto kind = static_cast<FaultKind>(i);
    const std::string name(NameOf(kind));
    kind_->addItem(QString::fromStdString(name) + ": " + InWords(kind), i);
  }
  kind_->setAccessibleName(Tr("Fault"));
  at_->setAccessibleName(Tr("Strikes number"));
  at_->setRange(1, kMostTraffic);
  at_->setToolTip(Tr("Strikes this reply or packet of a transfer, counted from 1"));
  delay_->setRange(0, kLongestDelay);
  delay_->setValue(Fault::kUsualDelay);
  delay_->setSuffix(Tr(" ms"));
  arm_->setToolTip(
      Tr("The fault strikes once, in the first transfer that gets as far. The backup before an "
         "upload is one: switch it off to have the upload struck."));
  auto* const panel = new QFrame;
  panel->setFrameStyle(QFrame::StyledPanel);
  auto* const column = new QVBoxLayout(panel);
  form_->addRow(Tr("Fault"), kind_);
  form_->addRow(Tr("Strikes number"), at_);
  form_->addRow(Tr("Later by"), delay_);
  column->addLayout(form_);
  auto* const row = new QHBoxLayout;
  row->addWidget(arm_);
  row->addWidget(disarm_);
  column->addLayout(row);
  const auto show_delay = [this] {
    form_->setRowVisible(delay_, Chosen().kind == FaultKind::kLate);
  };
  show_delay();
  QObject::connect(kind_, &QComboBox::currentIndexChanged, this, show_delay);
  QObject::connect(arm_, &QPushButton::clicked, this, [this] { on_fault(Chosen()); });
  QObject::connect(disarm_, &QPushButton::clicked, this, [this] { on_fault(std::nullopt); });
  return panel;
}

Fault LinkBox::Chosen() const {
  return {.kind = static_cast<FaultKind>(kind_->currentData().toInt()),
          .at = at_->value(),
          .delay_ms = delay_->value()};
}

void LinkBox::Unfold(bool unfolded) {
  heading_->setArrowType(unfolded ? Qt::DownArrow : Qt::RightArrow);
  panel_->setVisible(unfolded);
}

void LinkBox::ShowPending(const std::optional<Fault>& fault) {
  // To be seen while the rest is folded up, too.
  heading_->setText(fault ? Tr("Link: armed, %1").arg(QString::fromStdString(Describe(*fault)))
                          : Tr("Link"));
  disarm_->setEnabled(fault.has_value());
}

}  // namespace quorvel::muxhost
