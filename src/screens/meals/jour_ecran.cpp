#include "screens/meals/jour_ecran.h"

#include "application/globals.h"
#include "core/formats.h"
#include "workflows/reservation.h"

using namespace Qt::StringLiterals;

void TJourEcran::Reculer() { jour_ = JourPrecedent(jour_); }

void TJourEcran::Avancer() { jour_ = JourSuivant(jour_); }

QString TJourEcran::Titre() const { return FormatJour(jour_); }

QStringList ChoixDeClasses() {
  QStringList classes{u"Choisissez votre classe"_s};
  for (const auto& classe : Globals.Eleves->Classes()) {
    QString libelle = classe->Libelle();
    if (Globals.Eleves->PlusieursImplantations()) libelle += u"  ·  " % classe->LibelleImplantation();
    classes += libelle;
  }
  return classes;
}
