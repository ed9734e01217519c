#include "window/qt_alerts.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <algorithm>
#include <memory>

#include "ports/localisation.h"
#include "window/completed_window.h"
#include "window/padded_button.h"

namespace calvero {
namespace {

// Characters of a line of text: what the dialog has room for at least, and where a line wraps.
constexpr int kFewest = 40;
constexpr int kMost = 60;

constexpr const char* kCopyButton = "alertCopyButton";

struct Texts {
  QString heading;
  QString details;
};

QString withTrimmedLines(const QString& text) {
  QStringList lines = text.split('\n');
  for (QString& line : lines) line = line.trimmed();
  return lines.join('\n').trimmed();
}

/// A notice that has everything in its title shows the first line as heading.
Texts textsOf(const Alert& alert) {
  const QString title = withTrimmedLines(QString::fromStdString(alert.title));
  const QString message = withTrimmedLines(QString::fromStdString(alert.message));
  if (!message.isEmpty()) return {title, message};
  return {title.section('\n', 0, 0), title.section('\n', 1)};
}

QString literally(const std::string& buttonText) {
  return QString::fromStdString(buttonText).replace('&', "&&");
}

QLabel* newTextLabel(const QString& text, const QFont& font, QDialog& dialog) {
  auto* label = new QLabel(&dialog);
  label->setTextFormat(Qt::PlainText);
  label->setFont(font);
  label->setText(text);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
  const QFontMetrics metrics(font);
  const int widest = metrics.averageCharWidth() * kMost;
  label->setMinimumWidth(
      std::min(metrics.boundingRect(QRect(0, 0, widest, 0), Qt::TextWordWrap, text).width() + 1, widest));
  label->setTextInteractionFlags(Qt::TextInteractionFlags(
      dialog.style()->styleHint(QStyle::SH_MessageBox_TextInteractionFlags, nullptr, &dialog)));
  return label;
}

QLabel* newIconLabel(const char* file, QDialog& dialog) {
  constexpr int kIconSide = 40;
  auto* label = new QLabel(&dialog);
  label->setPixmap(QIcon(file).pixmap(QSize(kIconSide, kIconSide), dialog.devicePixelRatio()));
  return label;
}

QPushButton* addButton(QDialogButtonBox& box, const std::string& text, QDialogButtonBox::ButtonRole role,
                       const char* name) {
  constexpr int kLeastWidth = 96;
  auto* button = new PaddedButton(&box);
  button->setText(literally(text));
  button->setMinimumWidth(kLeastWidth);
  button->setObjectName(name);
  box.addButton(button, role);
  return button;
}

/// Commands are written from left to right in every language.
QLineEdit* newCommandLine(const std::string& command, const std::string& caption, QDialog& dialog) {
  constexpr int kBesideText = 16;
  auto* line = new QLineEdit(QString::fromStdString(command), &dialog);
  line->setObjectName("alertCommand");
  line->setAccessibleName(QString::fromStdString(caption));
  line->setReadOnly(true);
  line->setLayoutDirection(Qt::LeftToRight);
  line->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  const QFontMetrics metrics(line->font());
  line->setMinimumWidth(std::min(metrics.horizontalAdvance(line->text()), metrics.averageCharWidth() * kMost) +
                        kBesideText);
  line->setCursorPosition(0);
  return line;
}

void addCopyButton(QDialogButtonBox& box, const std::string& text, QLineEdit* line) {
  QPushButton* button = addButton(box, text, QDialogButtonBox::ActionRole, kCopyButton);
  QObject::connect(button, &QPushButton::clicked, line, [line] {
    QGuiApplication::clipboard()->setText(line->text());
    line->selectAll();  // shows that something has been done
  });
}

void layOut(QDialog& dialog, const Alert& alert, QLineEdit* command, QDialogButtonBox* buttons) {
  constexpr int kMargin = 18;
  constexpr int kBesideIcon = 16;
  constexpr int kAboveButtons = 4;
  const Texts texts = textsOf(alert);
  QFont bold = dialog.font();
  bold.setBold(true);
  auto* layout = new QGridLayout(&dialog);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->setColumnMinimumWidth(1, dialog.fontMetrics().averageCharWidth() * kFewest);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setHorizontalSpacing(kBesideIcon);
  const bool isQuestion = !alert.alternateButton.empty();
  layout->addWidget(newIconLabel(isQuestion ? ":/icons/question.svg" : ":/icons/information.svg", dialog), 0, 0, 2, 1,
                    Qt::AlignTop);
  layout->addWidget(newTextLabel(texts.heading, bold, dialog), 0, 1);
  if (!texts.details.isEmpty()) layout->addWidget(newTextLabel(texts.details, dialog.font(), dialog), 1, 1);
  if (command != nullptr) layout->addWidget(command, 2, 0, 1, 2);
  layout->setRowMinimumHeight(3, kAboveButtons);
  layout->addWidget(buttons, 4, 0, 1, 2);
  layout->activate();  // the window is made in its size, not brought to it once it is seen
}

/// The toolkit's own menus for texts are in English, whatever the language.
void leaveOutContextMenus(const QDialog& dialog) {
  for (QWidget* widget : dialog.findChildren<QWidget*>()) widget->setContextMenuPolicy(Qt::NoContextMenu);
}

/// What is answered, and what is copied.
void describeControls(const QDialog& dialog, const Alert& alert, const std::string& command) {
  const QString asked = withTrimmedLines(QString::fromStdString(alert.message.empty() ? alert.title : alert.message));
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) button->setAccessibleDescription(asked);
  if (auto* line = dialog.findChild<QLineEdit*>()) line->setAccessibleDescription(asked);
  auto* copying = dialog.findChild<QPushButton*>(kCopyButton);
  if (copying != nullptr) copying->setAccessibleDescription(QString::fromStdString(command));
}

}  // namespace

AlertAnswer QtAlerts::runModal(const Alert& alert) {
  return show(alert, "");
}

void QtAlerts::showCommand(const Alert& notice, const std::string& command) {
  show(notice, command);
}

AlertAnswer QtAlerts::show(const Alert& alert, const std::string& command) {
  const bool isQuestion = !alert.alternateButton.empty();
  AlertAnswer answer = isQuestion ? AlertAnswer::alternateButton : AlertAnswer::defaultButton;
  const QPointer<QDialog> dialog(new QDialog(parentForAlert()));
  dialog->setWindowFlags(kMessageFlags);
  dialog->setObjectName("alert");
  dialog->setWindowTitle(QGuiApplication::applicationDisplayName());
  dialog->setAccessibleName(QString::fromStdString(alert.title));
  dialog->setAccessibleDescription(QString::fromStdString(alert.message));

  QLineEdit* commandLine =
      command.empty() ? nullptr : newCommandLine(command, localisation_.localised("Command"), *dialog);
  auto* buttons = new QDialogButtonBox(dialog);
  const std::string defaultText = alert.defaultButton.empty() ? localisation_.localised("OK") : alert.defaultButton;
  QPushButton* defaultButton = addButton(*buttons, defaultText, QDialogButtonBox::AcceptRole, "alertDefaultButton");
  if (isQuestion) addButton(*buttons, alert.alternateButton, QDialogButtonBox::RejectRole, "alertAlternateButton");
  if (commandLine != nullptr) addCopyButton(*buttons, localisation_.localised("Copy Command"), commandLine);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, [&] {
    answer = AlertAnswer::defaultButton;
    dialog->accept();
  });
  describeControls(*dialog, alert, command);
  layOut(*dialog, alert, commandLine, buttons);
  leaveOutContextMenus(*dialog);
  defaultButton->setDefault(true);
  defaultButton->setFocus();

  dialog->exec();
  const std::unique_ptr<QDialog> remaining(dialog);  // none if its parent took it along
  return answer;
}

/// The alert that is already up, or the main window. A window that is not on the screen would take the alert with it.
QWidget* QtAlerts::parentForAlert() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const bool isOnScreen = mainWindow_ && mainWindow_->isVisible() && !mainWindow_->isMinimized();
  return isOnScreen ? mainWindow_.data() : nullptr;
}

}  // namespace calvero
