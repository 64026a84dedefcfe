#pragma once
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "core/data_module.h"
#include "core/fichiers.h"
#include "support/dialogues_scenario.h"

/// An open database of the test's own, with the present layout and no rows, in a temporary folder.
class TBaseEssai {
 public:
  TBaseEssai();
  /// Starts from a copy of that file instead.
  explicit TBaseEssai(const QString& depart);

  TDataModule1& operator*() { return module_; }
  TDataModule1* operator->() { return &module_; }
  /// Full path of a file of that name in the test's folder.
  QString Chemin(const QString& nom) const { return dossier_.filePath(nom); }
  QString FichierDeDonnees() const { return Chemin(u"essai.fdb"_s); }
  /// Writes a file in the test's folder; returns its full path.
  QString Fichier(const QString& nom, const QByteArray& contenu) const;
  /// One value of a select statement; "" when it has no row or is NULL.
  QString Valeur(const QString& sql);
  /// Every row of a select statement, the columns joined by ";", NULL as "-".
  QStringList Rangees(const QString& sql);
  /// A statement that must succeed.
  void Sql(const QString& sql);

  TDialoguesScenario Dialogues;
  TReglagesPoste Reglages;

 private:
  QTemporaryDir dossier_;
  TDataModule1 module_{Dialogues, Reglages};
};
