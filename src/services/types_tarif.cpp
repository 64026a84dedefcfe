#include "services/types_tarif.h"

const QStringList& TextesTypeFamille() {
  static const QStringList textes{QStringLiteral("indéfini"),
                                  QStringLiteral("garderie du matin"),
                                  QStringLiteral("garderie du soir"),
                                  QStringLiteral("garderie du mercredi"),
                                  QStringLiteral("étude"),
                                  QStringLiteral("repas"),
                                  QStringLiteral("soupe"),
                                  QStringLiteral("garderie du midi")};
  return textes;
}

const QStringList& TextesTypeJour() {
  static const QStringList textes{QString(),
                                  QStringLiteral("lundi"),
                                  QStringLiteral("mardi"),
                                  QStringLiteral("mercredi"),
                                  QStringLiteral("jeudi"),
                                  QStringLiteral("vendredi"),
                                  QStringLiteral("tous les jours"),
                                  QStringLiteral("lundi, mardi, jeudi, vendredi")};
  return textes;
}

const QStringList& TextesTypeScan() {
  static const QStringList textes{QString(), QStringLiteral("scanning de présence"),
                                  QStringLiteral("scanning à l'entrée"),
                                  QStringLiteral("scanning à la sortie")};
  return textes;
}

const QStringList& TextesUnite() {
  static const QStringList textes{QString(),
                                  QStringLiteral("période (forfait)"),
                                  QStringLiteral("heure"),
                                  QStringLiteral("demi heure"),
                                  QStringLiteral("quart d'heure"),
                                  QStringLiteral("minute")};
  return textes;
}

const QStringList& TextesFacturation() {
  static const QStringList textes{QString(),
                                  QStringLiteral("par période (forfait)"),
                                  QStringLiteral("à l'heure"),
                                  QStringLiteral("à la demi-heure"),
                                  QStringLiteral("au quart d'heure"),
                                  QStringLiteral("à la minute")};
  return textes;
}

TGroupe GroupeTarif(TTypeFamille famille) {
  switch (famille) {
    case TTypeFamille::Indefini:
    case TTypeFamille::Matin:
    case TTypeFamille::Soir:
    case TTypeFamille::Mercredi:
    case TTypeFamille::Midi:
      return TGroupe::Garderie;
    case TTypeFamille::Etude:
      return TGroupe::Etude;
    case TTypeFamille::Soupe:
      return TGroupe::Soupe;
    case TTypeFamille::Repas:
      break;
  }
  return TGroupe::Repas;
}

bool JourConvient(TTypeJour jour, TDateTime date) {
  const int jourDate = JourLundi1(date);
  switch (jour) {
    case TTypeJour::TousLesJours:
      return jourDate <= 5;
    case TTypeJour::LundiMardiJeudiVendredi:
      return jourDate <= 5 && jourDate != 3;
    default:
      return jourDate <= 5 && static_cast<int>(jour) == jourDate;
  }
}
