// The database itself.
#include "app/commandes.h"
#include "app/csv.h"
#include "core/conversions.h"

using namespace Qt::StringLiterals;

namespace {

int Creer(TSession& session) {
  if (session.Connecter(true)) return 0;
  session.Base.CreerTables();
  session.Dialogues.Information(u"Votre base de données est à jour !"_s);
  return 0;
}

int Parametre(TSession& session) {
  session.Connecter();
  TParametres parametres(session.Base);
  const TParam param{StrToInt(session.Arguments[0])};
  if (session.Arguments.size() > 1) {
    parametres.SetParametre(param, session.Arguments[1]);
    parametres.Save();
  }
  TCsv::EcrireLigne(parametres.GetParametre(param));
  return 0;
}

}  // namespace

std::span<const TCommandeLot> CommandesBase() {
  static constexpr TCommandeLot commandes[] = {
      {"creer", "", 0, 0, Creer},
      {"parametre", "ID [VALEUR]   (une valeur qui commence par un tiret : parametre -- ID VALEUR)", 1, 2,
       Parametre},
  };
  return commandes;
}
