// Headers that every layer below the widgets includes anyway.
#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>
