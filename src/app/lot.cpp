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
#include "core/conversions.h"
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

/// The present time of the day at work: of --jour, else of today.
class THorlogeDuJour : public THorloge {
 public:
  explicit THorlogeDuJour(const QCommandLineParser& options)
      : ecart_(options.isSet(u"jour"_s) ? StrToDate(options.value(u"jour"_s)) - Aujourdhui() : 0.0) {}
  TDateTime Maintenant() const override { return THorloge::Maintenant() + ecart_; }

 private:
  TDateTime ecart_ = 0.0;  // whole days
};

/// How the commands are called: those that begin with that word; all when none does.
QString Usage(const QString& mot = {}) {
  QStringList toutes, famille;
  for (const TCommandeLot& commande : Commandes()) {
    toutes += u"  " + commande.Ligne();
    if (QString(commande.Ligne() + u' ').startsWith(mot + u' ')) famille += toutes.last();
  }
  return u"Usage : calpenne-lot [--serveur S] [--annee A] [--oui] COMMANDE\n" +
         (famille.isEmpty() ? toutes : famille).join(u'\n');
}

int Lancer(const TCommandeLot& commande, const QCommandLineParser& options, const QStringList& arguments,
           TDialoguesTerminal& dialogues) {
  TReglagesPoste reglages;
  TDataModule1 base(dialogues, reglages);
  TSansFenetre sansFenetre;
  base.ServeurImpose = options.value(u"serveur"_s).trimmed();
  const THorlogeDuJour horloge(options);
  TControleur controleur(base, reglages, sansFenetre, horloge);
  const TLiberation liberation;
  TSession session{options, arguments, dialogues, base, controleur};
  const int code = commande.Executer(session);
  if (std::fflush(stdout) != 0) throw Exception(u"Le résultat ne peut pas être écrit."_s);
  return code;
}

/// What is wrong with the call of that command; "" when nothing is.
QString Faute(const TCommandeLot& commande, const QCommandLineParser& options, qsizetype arguments) {
  const QString nom = QString::fromUtf8(commande.Nom);
  if (const QString option = OptionEtrangere(commande, options); !option.isEmpty())
    return u"La commande « %1 » n'a pas d'option --%2."_s.arg(nom, option);
  if (arguments < commande.ArgumentsMin) return u"Il manque un argument à la commande « %1 »."_s.arg(nom);
  if (arguments > commande.ArgumentsMax) return u"La commande « %1 » a un argument de trop."_s.arg(nom);
  return {};
}

/// No option is a number, so that one below zero is an argument. It passes the parser under another sign.
constexpr QChar kMoins = u'\u2212';

QStringList CacherMoins(QStringList arguments) {
  for (qsizetype i = 1; i < arguments.size(); ++i) {
    QString& argument = arguments[i];
    const bool valeur = arguments[i - 1].startsWith(u"--");
    if (!valeur && argument.size() > 1 && argument[0] == u'-' && argument[1].isDigit()) argument[0] = kMoins;
  }
  return arguments;
}

QStringList RendreMoins(QStringList arguments) {
  for (QString& argument : arguments)
    if (argument.startsWith(kMoins)) argument[0] = u'-';
  return arguments;
}

int Executer(const QCommandLineParser& options, TDialoguesTerminal& dialogues) {
  const QStringList mots = RendreMoins(options.positionalArguments());
  const TCommandeLot* commande = TrouverCommande(mots);
  if (commande == nullptr || options.isSet(u"aide"_s)) {
    if (!mots.isEmpty() && commande == nullptr)
      dialogues.Message(u"Il n'y a pas de commande « %1 »."_s.arg(mots.join(u' ')));
    dialogues.Message(Usage(mots.value(0)));
    return options.isSet(u"aide"_s) ? kReussi : kMauvaisAppel;
  }
  const QStringList arguments = mots.mid(QByteArray(commande->Nom).count(' ') + 1);
  if (const QString faute = Faute(*commande, options, arguments.size()); !faute.isEmpty()) {
    dialogues.Message(faute + u"\nUsage : calpenne-lot " + commande->Ligne());
    return kMauvaisAppel;
  }
  return Lancer(*commande, options, arguments, dialogues);
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
  if (!options.parse(CacherMoins(application.arguments()))) {
    dialogues.Message(options.errorText() + u'\n' + Usage());
    return kMauvaisAppel;
  }
  dialogues.Oui = options.isSet(u"oui"_s);
  try {
    return Executer(options, dialogues);
  } catch (const EMauvaisAppel& e) {
    dialogues.Message(e.Message);
    return kMauvaisAppel;
  } catch (const Exception& e) {
    dialogues.Message(e.Message);
  } catch (const std::exception& e) {
    dialogues.Message(u"Erreur inattendue : "_s + QString::fromUtf8(e.what()));
  }
  return kEchec;
}
