#include "workflows/fiche_imprimee.h"

#include "core/formats.h"
#include "meals/generation_repas.h"
#include "pupils/classe.h"

using namespace Qt::StringLiterals;

namespace {

QString NomDuReglage(const TGenerationRepas& generation) {
  return generation.AvecVerrou ? u"FicheCuisine"_s : u"FicheCuisine2"_s;
}

int Nombre(const TComptesCuisine& comptes, const QString& ligne) {
  const auto i = comptes.find(ligne);
  return i == comptes.end() ? 0 : i->second;
}

void AjouterVarietes(TComptesCuisine& comptes, const TSandwichsDuJour& sandwichs, const QString& sorte) {
  for (std::size_t v = 0; v < kVarietes; ++v)
    if (sandwichs.Varietes[v] > 0) comptes[sorte % u' ' % TexteVariete(v)] = sandwichs.Varietes[v];
}

}  // namespace

TComptesCuisine ComptesCuisine(const TJourCuisine& jour, const TGenerationRepas& generation) {
  TComptesCuisine comptes;
  for (const TClasseDuJour& classe : jour.Classes)
    for (const TLigneCuisine& ligne : LignesDeClasse(classe, generation))
      comptes[classe.Classe->Libelle() % u", " % QString::fromUtf16(ligne.Libelle)] += ligne.Nombre;
  if (!generation.AvecVerrou) return comptes;  // no fillings
  AjouterVarietes(comptes, jour.DagosDuJour, QString::fromUtf16(generation.LigneDago));
  AjouterVarietes(comptes, jour.SandwichsDuJour, QString::fromUtf16(generation.LigneSandwich));
  return comptes;
}

// "42698;0.5;P1 A, Dago=2;..."
TFicheImprimee TFicheImprimee::Lire(const TReglagesPoste& reglages, const TGenerationRepas& generation) {
  const QStringList textes =
      reglages.Lire(TRacine::Utilisateur, NomDuReglage(generation)).split(u';', Qt::SkipEmptyParts);
  TFicheImprimee fiche;
  fiche.Jour = textes.value(0).toDouble();
  fiche.Moment = textes.value(1).toDouble();
  for (const QString& texte : textes.mid(2))
    fiche.Comptes[texte.section(u'=', 0, -2)] = texte.section(u'=', -1).toInt();
  return fiche;
}

void TFicheImprimee::Memoriser(TReglagesPoste& reglages, const TGenerationRepas& generation) const {
  QStringList textes{QString::number(Jour), QString::number(Moment, 'f', 6)};
  for (const auto& [ligne, nombre] : Comptes) textes += ligne % u'=' % QString::number(nombre);
  reglages.Ecrire(TRacine::Utilisateur, NomDuReglage(generation), textes.join(u';'));
}

QStringList TFicheImprimee::Changements(const TComptesCuisine& maintenant) const {
  TComptesCuisine lignes = maintenant;
  lignes.insert(Comptes.begin(), Comptes.end());
  QStringList changements;
  for (const auto& [ligne, _] : lignes) {
    const int avant = Nombre(Comptes, ligne), apres = Nombre(maintenant, ligne);
    if (avant != apres) changements += u"%1 : %2 → %3"_s.arg(ligne).arg(avant).arg(apres);
  }
  return changements;
}
