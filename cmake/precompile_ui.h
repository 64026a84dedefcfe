// Headers that nearly every view includes anyway.
#include <QApplication>
#include <QBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QString>
#include <QStyle>
#include <QToolButton>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>
