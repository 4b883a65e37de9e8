// SPDX-License-Identifier: GPL-3.0-or-later
// The yardstick of the program's start: a window of the same size that only shows one word in the same font.
#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QScreen>
#include <QWidget>

namespace {

class EmptyWindow : public QWidget {
public:
    explicit EmptyWindow(const QRect& screen) : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint)
    {
        resize(screen.size() * 4 / 5);
        move(screen.center() - rect().center());
        setWindowState(Qt::WindowMaximized); // like the program's window at its first starts
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0xFF, 0xF8, 0xE7));
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("Empty"));
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const int font = QFontDatabase::addApplicationFont(QStringLiteral(SPROUT_FONT));
    QFont andika(QFontDatabase::applicationFontFamilies(font).value(0));
    andika.setPixelSize(15);
    QApplication::setFont(andika);
    EmptyWindow window(QApplication::primaryScreen()->geometry());
    window.show();
    return QApplication::exec();
}
