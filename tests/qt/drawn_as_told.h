#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSlider>
#include <QTabWidget>
#include <QTableView>
#include <algorithm>
#include <string>

#include "quorvel/widgets.h"

namespace quorvel {

/// Compares what the toolkit's widgets show with what their models tell, both in words.
class DrawnAsTold {
 public:
  /// The first control of a dialog that its window draws otherwise; empty when there is none.
  static std::string FirstDifference(const QWidget& window, const Dialog& dialog) {
    for (const Widget* const widget : dialog.Widgets()) {
      const auto* const body = window.findChild<QWidget*>(Text(widget->Name()));
      if (body == nullptr) return widget->Name() + " is not drawn";
      const QString told = Told(*widget);
      const QString drawn = Drawn(widget->Kind(), *body);
      if (told != drawn) return (Text(widget->Name()) + Apart(told, drawn)).toStdString();
    }
    return {};
  }

 private:
  static QString Text(const std::string& text) { return QString::fromStdString(text); }
  static QString Number(int number) { return QString(" %1").arg(number); }
  static QString State(bool shown, bool enabled) {
    return QString(shown ? "shown" : "hidden") + (enabled ? ", enabled " : ", disabled ");
  }

  /// Where two texts begin to differ.
  static QString Apart(const QString& told, const QString& drawn) {
    constexpr qsizetype kBefore = 8;
    const auto [here, there] = std::mismatch(told.begin(), told.end(), drawn.begin(), drawn.end());
    const qsizetype place = std::max<qsizetype>(here - told.begin() - kBefore, 0);
    return QString(" is \"%1\", drawn \"%2\"").arg(told.mid(place, 40), drawn.mid(place, 40));
  }

  static QString Told(const Widget& widget) {
    const QString state = State(widget.Visible(), widget.Enabled());
    const QString caption = Text(widget.Caption());
    switch (widget.Kind()) {
      case WidgetKind::kFrame: return state + (caption.isEmpty() ? " " : caption);
      case WidgetKind::kLabel:
      case WidgetKind::kButton:
      case WidgetKind::kCheckBox:
      case WidgetKind::kOptionButton: return state + caption + Text(widget.ValueText());
      case WidgetKind::kListBox:
      case WidgetKind::kComboBox: return state + Told(dynamic_cast<const ChoiceWidget&>(widget));
      case WidgetKind::kGrid: return state + Told(dynamic_cast<const Grid&>(widget));
      case WidgetKind::kSlider: {  // one outside the scale is drawn at its end
        const auto& it = dynamic_cast<const Slider&>(widget);
        return state + Number(std::clamp(it.Value(), it.Minimum(), it.Maximum()));
      }
      case WidgetKind::kProgressBar:
        return state + Number(dynamic_cast<const ProgressBar&>(widget).Value());
      default: return state + Text(widget.ValueText());
    }
  }
  static QString Told(const ChoiceWidget& choice) {
    QString items;
    for (const std::string& item : choice.Items()) items += Text(item) + "|";
    return items + Number(choice.Current());
  }
  static QString Told(const Grid& grid) {
    QString cells;
    for (int column = 0; column < grid.Columns(); ++column) {
      cells += Text(grid.HeaderRows() == 1 ? grid.Cell(0, column) : grid.ColumnName(column)) + "|";
      for (int row = grid.HeaderRows(); row < grid.Rows(); ++row) {
        cells += Text(grid.Cell(row, column)) + "|";
      }
    }
    if (grid.Row() < grid.HeaderRows()) return cells;
    return cells + Number(grid.Column()) + Number(grid.FirstSelected() - grid.HeaderRows()) +
           Number(grid.LastSelected() - grid.HeaderRows());
  }

  static QString Drawn(WidgetKind kind, const QWidget& body) {
    return State(!body.isHidden(), body.isEnabledTo(body.parentWidget())) + Value(kind, body);
  }
  static QString Value(WidgetKind kind, const QWidget& body) {
    const QString text = body.property("text").toString().replace("&&", "&");
    switch (kind) {
      case WidgetKind::kFrame: return body.property("title").toString().replace("&&", "&");
      case WidgetKind::kCheckBox:
      case WidgetKind::kOptionButton:
        return text + (body.property("checked").toBool() ? "on" : "off");
      case WidgetKind::kListBox: return List(dynamic_cast<const QListView&>(body));
      case WidgetKind::kComboBox: {
        const auto& box = dynamic_cast<const QComboBox&>(body);
        return Items(*box.model()) + Number(box.currentIndex());
      }
      case WidgetKind::kSlider:
      case WidgetKind::kProgressBar: return Number(body.property("value").toInt());
      case WidgetKind::kTimePicker:
      case WidgetKind::kDatePicker: return body.findChild<QLineEdit*>()->text();
      case WidgetKind::kGrid: return Table(dynamic_cast<const QTableView&>(body));
      case WidgetKind::kTabStrip: return Pages(dynamic_cast<const QTabWidget&>(body));
      case WidgetKind::kStatusBar: {
        QStringList panels;
        for (const auto* const it : body.findChildren<QLabel*>()) panels << '"' + it->text() + '"';
        return panels.join(" | ");
      }
      default: return text;
    }
  }
  static QString Items(const QAbstractItemModel& model) {
    QString items;
    for (int row = 0; row < model.rowCount(); ++row) {
      items += model.index(row, 0).data().toString() + "|";
    }
    return items;
  }
  static QString List(const QListView& list) {
    const auto selected = list.selectionModel()->selectedIndexes();
    return Items(*list.model()) + Number(selected.isEmpty() ? -1 : selected.front().row());
  }
  static QString Table(const QTableView& table) {
    QString cells;
    const auto& model = *table.model();
    for (int column = 0; column < model.columnCount(); ++column) {
      cells += model.headerData(column, Qt::Horizontal).toString() + "|";
      for (int row = 0; row < model.rowCount(); ++row) {
        cells += model.index(row, column).data().toString() + "|";
      }
    }
    const auto selected = table.selectionModel()->selection();
    if (selected.isEmpty()) return cells;
    return cells + Number(selected.front().left()) + Number(selected.front().top()) +
           Number(selected.front().bottom());
  }
  static QString Pages(const QTabWidget& tabs) {
    QStringList pages;
    for (int page = 0; page < tabs.count(); ++page) {
      pages << QString("%1%2 \"%3\"%4")
                   .arg(page == tabs.currentIndex() ? "*" : "")
                   .arg(page)
                   .arg(tabs.tabText(page).replace("&&", "&"))
                   .arg(tabs.isTabVisible(page) ? "" : " hidden");
    }
    return pages.join(", ");
  }
};

}  // namespace quorvel
