// The least that a window of this toolkit can be: empty_window WIDTH HEIGHT shows one with nothing in it.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  QWidget window;
  if (arguments.size() == 3) window.resize(arguments[1].toInt(), arguments[2].toInt());
  window.show();
  return QApplication::exec();
}
