// The main of every test program without widgets.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "support/maison.h"

int main(int argc, char** argv) {
  const TMaison maison;
  testing::InitGoogleTest(&argc, argv);
  QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
