#include <QApplication>
#include <QWidget>

/// What any window costs: bench_empty_window WIDTH HEIGHT
int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  const QStringList given = QApplication::arguments();
  if (given.size() != 3) return 2;
  QWidget window;
  window.resize(given[1].toInt(), given[2].toInt());
  window.show();
  return QApplication::exec();
}
