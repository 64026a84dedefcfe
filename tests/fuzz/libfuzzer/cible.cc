#include <QCoreApplication>

#include "fuzz/cibles.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  static QCoreApplication application(*argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* octets, std::size_t taille) {
  static TCibles cibles;
  cibles.CIBLE(QByteArray(reinterpret_cast<const char*>(octets), static_cast<qsizetype>(taille)));
  return 0;
}
