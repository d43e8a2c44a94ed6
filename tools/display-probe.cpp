#include <QGuiApplication>

// Exits with 0 if Qt could open a window here. Without a display Qt aborts in its constructor, so only a
// separate program can test it.
int main(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    return 0;
}
