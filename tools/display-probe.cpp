#include <QGuiApplication>

// Ends with 0 if a window could be opened here. Where there is no display Qt aborts in its constructor, so
// only a program of its own can find that out.
int main(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    return 0;
}
