#include "screens/meals/jour_ecran.h"

#include "application/globals.h"
#include "core/formats.h"
#include "meals/generation_repas.h"
#include "workflows/reservation.h"

using namespace Qt::StringLiterals;

void TJourEcran::Reculer() { jour_ = JourPrecedent(jour_); }

void TJourEcran::Avancer() { jour_ = JourSuivant(jour_); }

QString TJourEcran::Titre() const { return FormatJour(jour_); }

std::vector<TCompteurRepas> CompteursRepas(const TClasse* classe, TDateTime jour,
                                           const TGenerationRepas& generation) {
  const struct {
    const char16_t* Libelle;
    int (TClasse::*Nombre)(TDateTime) const;
  } compteurs[] = {{generation.CompteurRepas, &TClasse::NombreRepas},
                   {generation.CompteurSandwichs, &TClasse::NombreSandwichs},
                   {generation.CompteurSansRepas, &TClasse::NombreSansCommande}};
  std::vector<TCompteurRepas> textes;
  for (const auto& [libelle, nombre] : compteurs)
    textes.push_back({QString::fromUtf16(libelle), classe != nullptr ? (classe->*nombre)(jour) : 0});
  return textes;
}

int AjouterEleve(TGrille& grille, TEleve& eleve, TCellules cellules, int etat) {
  const int ligne = grille.Ajouter(std::move(cellules), &eleve, etat);
  if (eleve.FlgRadie) grille.Barrer(ligne);
  return ligne;
}

QStringList ChoixDeClasses() {
  QStringList classes{u"Choisissez votre classe"_s};
  for (const auto& classe : Globals.Eleves->Classes()) {
    QString libelle = classe->Libelle();
    if (Globals.Eleves->PlusieursImplantations()) libelle += u"  ·  " % classe->LibelleImplantation();
    classes += libelle;
  }
  return classes;
}
