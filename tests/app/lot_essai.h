// What runs the batch program as a script would: arguments in, output, messages and exit code out.
#pragma once

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include "support/ecole_essai.h"

/// A command line, what it prints, a piece of what it says, and its exit code.
struct TAppel {
  QStringList Arguments;
  int Code;
  QString Sortie, Message;
};

inline QStringList Mots(const QString& texte) { return texte.split(u' ', Qt::SkipEmptyParts); }

/// The words of a command that prints these lines and says nothing.
inline TAppel Donne(const QString& commande, const QStringList& lignes) {
  return {Mots(commande), 0, lignes.join(u'\n') + u'\n', {}};
}
/// The words of a command that is refused with this.
inline TAppel Refuse(const QString& commande, const QString& message, int code = 1) {
  return {Mots(commande), code, {}, message};
}

/// A school in a file that nobody may hold open while the program runs.
class TProgrammeEssai : public testing::Test {
 protected:
  /// On a new workstation: no test works with what another one has set.
  TProgrammeEssai() { QFile::remove(FichierReglages()); }

  QString Chemin(const char* nom) const { return base_.Chemin(QString::fromLatin1(nom)); }
  QString Fichier(const char* nom, const QByteArray& contenu) const {
    return base_.Fichier(QString::fromLatin1(nom), contenu);
  }

  /// The settings of the program itself, which are not those of the test.
  static QString FichierReglages() {
    return qEnvironmentVariable("XDG_CONFIG_HOME") % u"/Tarnvale/Orbelin.conf";
  }
  /// Of a program that is to be killed, apart from the test's: a lock table that is broken by a kill lives as
  /// long as somebody holds it.
  QProcessEnvironment MilieuAPart() const {
    QDir().mkpath(Chemin("verrous"));
    QProcessEnvironment milieu = QProcessEnvironment::systemEnvironment();
    milieu.insert(u"FIREBIRD_LOCK"_s, Chemin("verrous"));
    return milieu;
  }

  static void Lancer(QProcess& programme, const QStringList& arguments) {
    QProcessEnvironment milieu = QProcessEnvironment::systemEnvironment();
    milieu.insert(u"XDG_CONFIG_DIRS"_s, milieu.value(u"XDG_CONFIG_HOME"_s));
    programme.setProcessEnvironment(milieu);
    programme.start(QStringLiteral(CALPENNE_LOT), arguments);
    ASSERT_TRUE(programme.waitForFinished(60'000)) << programme.errorString().toStdString();
    ASSERT_EQ(programme.exitStatus(), QProcess::NormalExit);
  }

  /// The calls one after the other, each as it is written.
  static void VerifierTels(const std::vector<TAppel>& appels) {
    for (const TAppel& appel : appels) {
      SCOPED_TRACE(appel.Arguments.join(u' ').toStdString());
      QProcess programme;
      Lancer(programme, appel.Arguments);
      const QString erreurs = QString::fromUtf8(programme.readAllStandardError());
      EXPECT_EQ(programme.exitCode(), appel.Code) << erreurs.toStdString();
      EXPECT_EQ(QString::fromUtf8(programme.readAllStandardOutput()), appel.Sortie);
      EXPECT_TRUE(appel.Message.isEmpty() ? erreurs.isEmpty() : erreurs.contains(appel.Message))
          << erreurs.toStdString();
    }
  }

  QStringList Serveur() const { return {u"--serveur"_s, base_.FichierDeDonnees()}; }
  /// The calls on the school's file.
  void Verifier(std::vector<TAppel> appels) const {
    for (TAppel& appel : appels) appel.Arguments = Serveur() + appel.Arguments;
    VerifierTels(appels);
  }

  QJsonObject Json() const {
    QJsonParseError faute;
    const QJsonDocument json = QJsonDocument::fromJson(LireFichier(Chemin("document.json")), &faute);
    EXPECT_EQ(faute.error, QJsonParseError::NoError) << faute.errorString().toStdString();
    return json.object();
  }

  TBaseEssai base_;
  TEcoleEssai ecole_{base_};
};
