#pragma once
#include "support/controleur_essai.h"

/// What reads outside files, over a small school. A target may refuse its bytes with an Exception, which
/// it swallows; anything else is a fault.
class TCibles {
 public:
  TCibles();
  /// The bytes as a register file, through both steps.
  void Registre(const QByteArray& octets);
  /// The bytes as a file of scans, through analysis and storage.
  void Presences(const QByteArray& octets);
  /// The bytes as a bank's file of every layout, through both steps.
  void Releve(const QByteArray& octets);
  /// The bytes as a file that tells its own form, of accounts and movements. Whether it was read.
  bool ReleveBancaire(const QByteArray& octets);
  /// The bytes as a local data set, and as what one holds behind a right checksum. Whether one was read.
  bool CopieLocale(const QByteArray& octets);
  /// The bytes as the tablet's file of meals, in which a meal is noted and taken back.
  void Repas(const QByteArray& octets);
  /// The bytes as what a saved report holds once decompressed, then into a PDF.
  void Rapport(const QByteArray& octets);
  /// The bytes as a template; one that is read lays out a small report. Whether it was.
  bool Modele(const QByteArray& octets);
  /// The bytes as a label model; one that is read prints a label. Whether it was.
  bool Etiquette(const QByteArray& octets);
  /// The bytes as a script, each of whose procedures is called. Whether it was read.
  bool Script(const QByteArray& octets);

 private:
  TBaseEssai base_;
  TControleurEssai essai_{base_};
};
