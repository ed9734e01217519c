#include "tests/gallery/text_fit.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QStyleOptionButton>
#include <QTextOption>

#include "window/elided_label.h"
#include "window/label_button.h"
#include "window/selection_button.h"
#include "window/wrapped_label.h"

namespace calvero::testing {
namespace {

constexpr const char* kNamesOfVolumes[] = {"titleField", "tfDriveName", "volLabel"};

QString nameOf(const QWidget& widget) {
  const QString kind = widget.metaObject()->className();
  return widget.objectName().isEmpty() ? kind : widget.objectName();
}

QString inWords(const QSize& size) {
  return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

bool isNameOfVolume(const QWidget& label) {
  return std::any_of(std::begin(kNamesOfVolumes), std::end(kNamesOfVolumes),
                     [&](const char* name) { return label.objectName() == QLatin1String(name); });
}

/// The room that a wrapped text needs: wider than `width` when one of its words is.
QSize wrappedSize(const QWidget& widget, const QString& text, int width) {
  const QRect paper(0, 0, width, QWIDGETSIZE_MAX);
  return QFontMetrics(widget.font()).boundingRect(paper, Qt::TextWordWrap, text).size();
}

QSize sizeOfLines(const QWidget& widget, const QString& text) {
  return QFontMetrics(widget.font()).size(0, text);
}

/// A label's room for text.
QSize roomIn(const QLabel& label) {
  const int indent = std::max(label.indent(), 0);
  const int margin = 2 * label.margin();
  return label.contentsRect().size() - QSize(margin + indent, margin);
}

/// The room that the text of a label needs when it has `room`.
QSize neededBy(const QLabel& label, const QSize& room) {
  const QString text = label.text();
  if (const auto* elided = qobject_cast<const ElidedLabel*>(&label)) {
    const QSize line = sizeOfLines(label, text);
    const bool isWhole = elided->shownText() == text || isNameOfVolume(label);
    return isWhole ? QSize(0, line.height()) : line;
  }
  if (qobject_cast<const WrappedLabel*>(&label) != nullptr) {
    return {label.minimumSizeHint().width(), label.heightForWidth(room.width())};
  }
  if (!label.pixmap(Qt::ReturnByValue).isNull())
    return label.pixmap(Qt::ReturnByValue).deviceIndependentSize().toSize();
  return label.wordWrap() ? wrappedSize(label, text, room.width()) : sizeOfLines(label, text);
}

QSize roomIn(const QAbstractButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  return button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button).size();
}

QString titleOf(const QAbstractButton& button) {
  QString title = button.text();
  return title.replace(QStringLiteral("&&"), QStringLiteral("&"));
}

QStringList textFault(const QWidget& widget, const QString& text, const QSize& room, const QSize& needed) {
  if (needed.width() <= room.width() && needed.height() <= room.height()) return {};
  return {QStringLiteral("%1: \"%2\" needs %3 and has %4")
              .arg(nameOf(widget), text.simplified(), inWords(needed), inWords(room))};
}

QStringList faultOf(const QAbstractButton& button) {
  const QString title = titleOf(button);
  if (title.isEmpty()) return {};
  if (const auto* label = qobject_cast<const LabelButton*>(&button)) {
    return textFault(button, title, button.size(),
                     {label->minimumSizeHint().width(), label->heightForWidth(button.width())});
  }
  QSize needed = QFontMetrics(button.font()).size(Qt::TextSingleLine, title);
  constexpr int kBesideIcon = 4;
  if (!button.icon().isNull()) needed.rwidth() += button.iconSize().width() + kBesideIcon;
  return textFault(button, title, roomIn(button), needed);
}

QStringList textFaultOf(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    const QSize room = roomIn(*label);
    return textFault(widget, label->text(), room, neededBy(*label, room));
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return faultOf(*button);
  // What is longer than the line is scrolled to, the beginning is seen.
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
    return textFault(widget, line->text(), widget.size(), QSize(0, line->minimumSizeHint().height()));
  }
  if (const auto* bar = qobject_cast<const QProgressBar*>(&widget)) {
    return bar->isTextVisible() ? textFault(widget, bar->text(), bar->size(), sizeOfLines(widget, bar->text()))
                                : QStringList();
  }
  const bool tellsMore =
      !widget.property("text").toString().isEmpty() || !widget.property("title").toString().isEmpty();
  return tellsMore ? QStringList{nameOf(widget) + ": a text of a kind that is not known here"} : QStringList();
}

bool isViewport(const QWidget& widget) {
  const auto* area = qobject_cast<const QAbstractScrollArea*>(widget.parentWidget());
  return area != nullptr && area->viewport() == &widget;
}

/// A scrolled widget may be higher than what is seen of it, not wider: nothing scrolls sideways.
QStringList placeFaultOf(const QWidget& widget) {
  const QWidget& parent = *widget.parentWidget();
  QRect room = parent.rect();
  if (isViewport(parent)) room.setRect(room.x(), widget.y(), room.width(), widget.height());
  if (room.contains(widget.geometry()) || widget.size().isEmpty()) return {};
  return {QStringLiteral("%1: reaches out of %2").arg(nameOf(widget), nameOf(parent))};
}

QStringList overlaps(const QList<QWidget*>& siblings) {
  QStringList found;
  for (qsizetype i = 0; i < siblings.size(); ++i) {
    for (qsizetype j = i + 1; j < siblings.size(); ++j) {
      if (!siblings[i]->geometry().intersects(siblings[j]->geometry())) continue;
      found += QStringLiteral("%1: overlaps %2").arg(nameOf(*siblings[i]), nameOf(*siblings[j]));
    }
  }
  return found;
}

/// The widgets of the same window that stand on `parent` and are seen.
QList<QWidget*> seenOn(const QWidget& parent) {
  QList<QWidget*> seen;
  for (QWidget* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (!child->isWindow() && child->isVisible()) seen += child;
  }
  return seen;
}

}  // namespace

QStringList misfits(const QWidget& window) {
  QStringList found;
  const QList<QWidget*> children = seenOn(window);
  // The parts of a scroll area are its own affair.
  if (qobject_cast<const QAbstractScrollArea*>(&window) == nullptr) found += overlaps(children);
  for (const QWidget* child : children) {
    found += textFaultOf(*child);
    found += placeFaultOf(*child);
    found += misfits(*child);
  }
  return found;
}

}  // namespace calvero::testing
