// The batch program: the same logic without windows, for scheduled work and for anyone who tests.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#ifdef Q_OS_UNIX
#include <langinfo.h>
#endif
#include <clocale>
#include <cstring>

#include "app/commandes.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

enum { kReussi = 0, kEchec = 1, kMauvaisAppel = 2 };

/// The collections go before the connection that they look at.
struct TLiberation {
  TLiberation() = default;
  ~TLiberation() { Globals.Liberer(); }
  TLiberation(const TLiberation&) = delete;
  TLiberation& operator=(const TLiberation&) = delete;
};

void DeclarerOptions(QCommandLineParser& options) {
  const auto valeur = [&](const char* nom) {
    options.addOption({QString::fromLatin1(nom), {}, u"valeur"_s});
  };
  for (const char* nom :
       {"serveur", "annee", "mois", "du", "au", "eleves", "classes", "date-paiement", "json", "pdf"})
    valeur(nom);
  for (const char* nom : {"oui", "cloturer", "annee-scolaire", "tous", "aide"})
    options.addOption(QCommandLineOption(QString::fromLatin1(nom)));
}

QString Usage() {
  QString texte = u"Usage : calpenne-lot [--serveur S] [--annee A] [--oui] COMMANDE\n"_s;
  for (const TCommande& commande : Commandes()) texte += u"  " + QString::fromUtf8(commande.Usage) + u'\n';
  return texte.trimmed();
}

int Executer(const QCommandLineParser& options, TDialoguesTerminal& dialogues) {
  QStringList arguments = options.positionalArguments();
  const QString nom = arguments.isEmpty() ? QString() : arguments.takeFirst();
  for (const TCommande& commande : Commandes()) {
    if (nom != QLatin1String(commande.Nom)) continue;
    if (arguments.size() < commande.ArgumentsMin || arguments.size() > commande.ArgumentsMax) break;
    TReglagesPoste reglages;
    TDataModule1 base(dialogues, reglages);
    TSansFenetre sansFenetre;
    const THorloge horloge;
    TControleur controleur(base, reglages, sansFenetre, horloge);
    const TLiberation liberation;
    TSession session{options, arguments, dialogues, base, controleur};
    const int code = commande.Executer(session);
    if (std::fflush(stdout) != 0) throw Exception(u"Le résultat ne peut pas être écrit."_s);
    return code;
  }
  dialogues.Message(Usage());
  return options.isSet(u"aide"_s) ? kReussi : kMauvaisAppel;
}

}  // namespace

int main(int argc, char** argv) {
#ifdef Q_OS_UNIX
  // A scheduled job may have no locale, and the database engine then takes no path with an accent.
  std::setlocale(LC_ALL, "");
  if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) qputenv("LC_ALL", "C.UTF-8");
#endif
  QCoreApplication application(argc, argv);
  QLocale::setDefault(QLocale(u"fr_BE"_s));
  QTranslator traduction;
  if (traduction.load(u"qtbase_fr"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&traduction);

  TDialoguesTerminal dialogues;
  QCommandLineParser options;
  DeclarerOptions(options);
  if (!options.parse(application.arguments())) {
    dialogues.Message(options.errorText() + u'\n' + Usage());
    return kMauvaisAppel;
  }
  dialogues.Oui = options.isSet(u"oui"_s);
  try {
    return Executer(options, dialogues);
  } catch (const Exception& e) {
    dialogues.Message(e.Message);
  } catch (const std::exception& e) {
    dialogues.Message(u"Erreur inattendue : "_s + QString::fromUtf8(e.what()));
  }
  return kEchec;
}
