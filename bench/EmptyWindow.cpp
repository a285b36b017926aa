// What the game's start is compared with: a window of the same size with a menu, a status bar and
// 52 picture labels, and nothing behind them.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPixmap>
#include <QStatusBar>

int main(int count, char* arguments[]) {
  const QApplication application(count, arguments);
  QMainWindow window;
  window.setWindowTitle("Empty");
  for (const char* name : {"&Play", "&Help", "&Names", "&Statistics"}) {
    QMenu* menu = window.menuBar()->addMenu(name);
    for (const char* item : {"First", "Second", "Third", "Fourth"}) menu->addAction(item);
  }
  window.statusBar()->showMessage("Ready");
  auto* table = new QWidget;
  window.setCentralWidget(table);
  QPixmap picture(71, 96);
  picture.fill(Qt::white);
  for (int card = 0; card < 52; ++card) {
    auto* label = new QLabel(table);
    label->setPixmap(picture);
    label->setFixedSize(picture.size());
    label->move(20 + card % 13 * 52, 20 + card / 13 * 130);
  }
  window.resize(784, 635);
  window.show();
  return QApplication::exec();
}
