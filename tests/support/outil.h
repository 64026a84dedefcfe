#pragma once
#include <gtest/gtest.h>

#include <QProcess>

/// What another program prints; one that fails fails the test.
inline QString Sortie(const QString& programme, const QStringList& arguments) {
  QProcess processus;
  processus.start(programme, arguments);
  EXPECT_TRUE(processus.waitForFinished(60'000)) << programme.toStdString();
  EXPECT_EQ(processus.exitCode(), 0) << programme.toStdString() << ": "
                                     << processus.readAllStandardError().toStdString();
  return QString::fromUtf8(processus.readAllStandardOutput());
}
