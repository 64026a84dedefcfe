#include "workflows/fiches_fiscales.h"

#include <algorithm>
#include <optional>
#include <unordered_set>

#include "application/globals.h"
#include "core/accord.h"
#include "core/formats.h"
#include "core/numero_national.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// Of a responsible person: what the sheet needs, and the fields of the record where it stands.
struct TDebiteur {
  QString TEleve::*Nom;
  QString TEleve::*NumNational;
  const char16_t* ChampNom;
  const char16_t* ChampNumNational;
  const char16_t* Qui;
};

constexpr TDebiteur kDebiteurs[] = {
    {&TEleve::NomResponsable, &TEleve::NumNationalResponsable, u"edNomResponsable",
     u"edNumNationalResponsable", u"du responsable"},
    {&TEleve::NomResponsable2, &TEleve::NumNationalResponsable2, u"edNomResponsable2",
     u"edNumNationalResponsable2", u"du second responsable"},
};

bool Compte(const TJourGarde& jour, int payeur) {
  return jour.Paye && jour.Recu[static_cast<std::size_t>(payeur)] > Currency();
}

/// What stands in the way of a number; "" when nothing does.
QString FauteNumero(const QString& numero, const QString& de) {
  if (numero.trimmed().isEmpty()) return u"le numéro national " % de % u" manque";
  return NumeroNationalValide(numero) ? QString() : QString(u"le numéro national " % de % u" est incorrect");
}

/// One part after the other of the year, each with the days that this person has paid.
std::vector<TPeriodeGarde> Periodes(const std::vector<TJourGarde>& jours, int payeur) {
  TPeriodeGarde trimestres[4];
  for (const TJourGarde& jour : jours) {
    if (!Compte(jour, payeur)) continue;
    TPeriodeGarde& periode = trimestres[Trimestre(jour.Date) - 1];
    if (periode.Jours++ == 0) periode.Debut = jour.Date;
    periode.Fin = jour.Date;
    periode.Montant += jour.Recu[static_cast<std::size_t>(payeur)];
  }
  std::vector<TPeriodeGarde> periodes;
  for (TPeriodeGarde& periode : trimestres) {
    periode.Montant = periode.Montant.TronqueAuCent();  // never more than was received
    if (periode.Montant > Currency()) periodes.push_back(periode);
  }
  return periodes;
}

}  // namespace

Currency TPeriodeGarde::Tarif() const {
  const std::int64_t centimes = Montant.EnBrut() / 100;
  return Currency::Brut((2 * centimes + Jours) / (2 * Jours) * 100);
}

TFichesFiscales::TFichesFiscales(const TEleves& eleves, const TParametres& parametres, int anneeRevenus)
    : Annee(anneeRevenus), Regles(ReglesFiscales(anneeRevenus)), eleves_(eleves) {
  for (const int i : {0, 1})
    if (const int ecole = Annee - 1 + i; ecole != eleves.AnneeScolaire)
      lues_[i] = ChargerDonneesAnnee(eleves.BaseDeDonnees(), ecole, parametres, *Globals.TarifsGarderies);
  LirePayeurs();
}

const TEleves& TFichesFiscales::Eleves(int ecole) const {
  return ecole == eleves_.AnneeScolaire ? eleves_ : *lues_[ecole == Annee ? 1 : 0]->Eleves;
}

std::vector<TEleve*> TFichesFiscales::AvecHorsAnnee(std::vector<TEleve*> eleves, std::set<int> cles) const {
  for (const int ecole : {Annee, Annee - 1})  // with the last class
    for (TEleve& eleve : Eleves(ecole))
      if (cles.erase(eleve.Id) > 0) eleves.push_back(&eleve);
  return eleves;
}

void TFichesFiscales::LirePayeurs() {
  TCurseur ligne(eleves_.BaseDeDonnees(),
                 u"SELECT EXTRAIT_ID, TYPE_RESPONSABLE FROM EXTRAITS WHERE TYPE_RESPONSABLE IN (1, 2)"_s);
  while (ligne.Suivant()) payeurs_[ligne.Entier("EXTRAIT_ID")] = ligne.Entier("TYPE_RESPONSABLE");
}

void TFichesFiscales::Manque(TEleve& eleve, const QString& champ, const QString& texte, bool sansFiche) {
  manques_.push_back({&eleve, champ, texte, sansFiche});
}

std::vector<TFicheFiscale> TFichesFiscales::Fiches(const std::vector<TEleve*>& eleves) {
  manques_.clear();
  for (const int annee : {Annee - 1, Annee}) {
    std::vector<TEleve*> deLAnnee;
    for (const TEleve* eleve : eleves)
      if (TEleve* celui = Eleves(annee).TrouverParId(eleve->Id)) deLAnnee.push_back(celui);
    Eleves(annee).LireFrais(deLAnnee);
  }
  std::vector<TFicheFiscale> fiches;
  std::unordered_set<int> faits;  // who is enrolled twice in the year stands twice in the list
  for (TEleve* eleve : eleves)
    if (faits.insert(eleve->Id).second) Ajouter(*eleve, fiches);
  return fiches;
}

/// The day before the birthday at which care counts no more.
TDateTime TFichesFiscales::DernierJour(const TEleve& eleve) const {
  const int age = eleve.FlgHandicap ? Regles.AgeHandicap : Regles.Age;
  return DateDeQt(DateVersQt(eleve.DateNaissance).addYears(age)) - 1;
}

/// The days of care of the year that count. Autumn's money first pays what was owed before it.
std::vector<TJourGarde> TFichesFiscales::Jours(const TEleve& eleve) const {
  std::optional<TCompteGarde> printemps, automne;
  if (const TEleve* e = Eleves(Annee - 1).TrouverParId(eleve.Id)) printemps.emplace(*e, Regles, payeurs_);
  if (const TEleve* e = Eleves(Annee).TrouverParId(eleve.Id)) automne.emplace(*e, Regles, payeurs_);
  if (printemps && automne) printemps->Recevoir(automne->DettePayee());
  std::vector<TJourGarde> jours;
  for (auto* compte : {&printemps, &automne})
    if (*compte) std::ranges::move((*compte)->Solder(), std::back_inserter(jours));
  const bool ageConnu = eleve.DateNaissance != 0.0;
  std::erase_if(jours, [&](const TJourGarde& jour) {
    return DecodeDate(jour.Date).Annee != Annee || (ageConnu && jour.Date > DernierJour(eleve));
  });
  return jours;
}

void TFichesFiscales::Ajouter(TEleve& eleve, std::vector<TFicheFiscale>& fiches) {
  const std::vector<TJourGarde> jours = Jours(eleve);
  std::vector<TFicheFiscale> siennes;
  for (const int responsable : {1, 2}) {
    TFicheFiscale fiche{&eleve, responsable, Periodes(jours, responsable), {}};
    for (const TPeriodeGarde& periode : fiche.Periodes) fiche.Montant += periode.Montant;
    if (!fiche.Periodes.empty()) siennes.push_back(std::move(fiche));
  }
  const bool sansPayeur = std::ranges::any_of(jours, [](const TJourGarde& jour) { return Compte(jour, 0); });
  if (sansPayeur)
    Manque(eleve, {},
           u"débiteur inconnu : un virement n'a pas de responsable (Historique des virements, « Compte "
           "responsable 1 » ou « 2 »)"_s);
  if ((!siennes.empty() || sansPayeur) && Complet(eleve, siennes) && !sansPayeur)
    std::ranges::move(siennes, std::back_inserter(fiches));
  DireImpayes(eleve, jours);
}

/// Says what is missing of the child and of those who paid.
bool TFichesFiscales::Complet(TEleve& eleve, const std::vector<TFicheFiscale>& fiches) {
  const std::size_t avant = manques_.size();
  if (eleve.DateNaissance == 0.0)
    Manque(eleve, u"lblDateNaissance"_s, u"la date de naissance de l'enfant manque"_s);
  if (const QString faute = FauteNumero(eleve.NumNational, u"de l'enfant"_s); !faute.isEmpty())
    Manque(eleve, u"edNumNational"_s, faute);
  for (const TFicheFiscale& fiche : fiches) {
    const TDebiteur& debiteur = kDebiteurs[fiche.Responsable - 1];
    const QString qui = QString::fromUtf16(debiteur.Qui);
    if ((eleve.*debiteur.Nom).trimmed().isEmpty())
      Manque(eleve, QString::fromUtf16(debiteur.ChampNom), u"débiteur : le nom " % qui % u" manque");
    if (const QString faute = FauteNumero(eleve.*debiteur.NumNational, qui); !faute.isEmpty())
      Manque(eleve, QString::fromUtf16(debiteur.ChampNumNational), faute);
  }
  return manques_.size() == avant;
}

void TFichesFiscales::DireImpayes(TEleve& eleve, const std::vector<TJourGarde>& jours) {
  std::vector<TDateTime> impayes;
  for (const TJourGarde& jour : jours)
    if (!jour.Paye) impayes.push_back(jour.Date);
  if (impayes.empty()) return;
  const QString quand =
      impayes.size() == 1
          ? QString(u"le " % FormatDate(impayes.front()))
          : QString(u"du " % FormatDate(impayes.front()) % u" au " % FormatDate(impayes.back()));
  Manque(
      eleve, {},
      Compter(static_cast<qint64>(impayes.size()), u"jour de garde impayé"_s, u"jours de garde impayés"_s) %
          u", " % quand % u" : pas sur la fiche",
      false);
}
