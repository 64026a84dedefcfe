#include "screens/parametres/frm_mon_ecole.h"

#include <QRegularExpression>
#include <array>

#include "core/exceptions.h"
#include "core/numero_entreprise.h"
#include "screens/commun/refus.h"
#include "screens/parametres/pages_parametres.h"

using namespace Qt::StringLiterals;

namespace {

using enum TParam;
using TRang = TChampDe<TParametres>;

constexpr int kNomImplantationMaximum = 50;

/// `largeur` 0 takes the width of the page.
TRang Texte(const char16_t* nom, TParam param, const char16_t* libelle, int largeur = 0) {
  return Reglage(
      param, {.Nom = QString::fromUtf16(nom), .Libelle = QString::fromUtf16(libelle), .Largeur = largeur});
}

/// Four numbers on a row: from an hour and a minute to an hour and a minute.
struct THoraire {
  const char16_t* Jours;
  const char16_t* Suffixe;
  std::array<TParam, 4> Nombres;
};
constexpr THoraire kHoraires[] = {
    {u"le lundi, mardi, jeudi et vendredi",
     u"LMJV",
     {HeureDebutLMJV, MinuteDebutLMJV, HeureFinLMJV, MinuteFinLMJV}},
    {u"le mercredi",
     u"Mercredi",
     {HeureDebutMercredi, MinuteDebutMercredi, HeureFinMercredi, MinuteFinMercredi}}};
const struct {
  const char16_t *Debut, *Quoi, *Libelle, *Unite;
} kNombres[] = {{u"edHeureDebut", u"heure du début des cours", u"Les cours se déroulent de :", u"h"},
                {u"edMinuteDebut", u"minutes du début des cours", u"", u""},
                {u"edHeureFin", u"heure de la fin des cours", u"à", u"h"},
                {u"edMinuteFin", u"minutes de la fin des cours", u"", u""}};

void AjouterHoraire(TTableChamps<TParametres>& table, const THoraire& horaire) {
  const QString jours = QString::fromUtf16(horaire.Jours);
  for (std::size_t i = 0; i < horaire.Nombres.size(); ++i) {
    const auto& [debut, quoi, libelle, unite] = kNombres[i];
    const QString derriere = i == 3 ? jours : QString::fromUtf16(unite);
    table.push_back(
        Reglage(horaire.Nombres[i], {.Nom = QString::fromUtf16(debut) % QString::fromUtf16(horaire.Suffixe),
                                     .Libelle = QString::fromUtf16(libelle),
                                     .Nomme = QString::fromUtf16(quoi) % u", " % jours,
                                     .Largeur = 44,
                                     .Unite = derriere,
                                     .Suite = i > 0}));
  }
}

TTableChamps<TParametres> ChampsEcole() {
  TTableChamps<TParametres> table{
      Texte(u"edNomEcole", NomEcole, u"Nom de l'école:"),
      Texte(u"edEcoleAdresse", RueEcole, u"Adresse:"),
      Texte(u"edEcoleCodePostal", CodePostalEcole, u"Code postal:", 96),
      Texte(u"edEcoleLocalite", LocaliteEcole, u"Localité :"),
      Texte(u"edEcoleTelephone", TelephoneEcole, u"N° de téléphone:", 200),
      Texte(u"edEmail", EmailEcole, u"Adresse de messagerie:"),
      Texte(u"edImplantation", NomImplantation, u"Nom de l'implantation:"),
      Texte(u"edCompteBancaire", CompteBanque, u"N° de compte bancaire :"),
      Texte(u"edNumeroEntreprise", NumeroEntreprise, u"N° d'entreprise (BCE) :", 200),
      Texte(u"edNomDirection", NomDirection, u"Nom de la direction:"),
      Texte(u"edPrenomDirection", PrenomDirection, u"Prénom de la direction:"),
      Texte(u"edTitreDirection", TitreDirection, u"Titre de la direction:"),
  };
  for (const THoraire& horaire : kHoraires) AjouterHoraire(table, horaire);
  return table;
}

/// The documents read these as numbers.
QString AvisHoraire(const TChamp& champ, const QString& texte) {
  static const QRegularExpression kNom(u"^ed(Heure|Minute)(Debut|Fin)"_s);
  const QRegularExpressionMatch lu = kNom.match(champ.Nom);
  if (!lu.hasMatch() || texte.isEmpty()) return {};
  bool entier = false;
  const int nombre = texte.toInt(&entier);
  const bool heure = lu.captured(1) == u"Heure";
  if (entier && nombre >= 0 && nombre < (heure ? 24 : 60)) return {};
  return u"enregistré, mais « %1 » n'est pas %2"_s.arg(texte,
                                                       heure ? u"une heure"_s : u"un nombre de minutes"_s);
}

QString AvisEcole(const TChamp& champ, const QString& texte) {
  if (champ.Nom == u"edNumeroEntreprise" && !texte.isEmpty() && !NumeroEntrepriseValide(texte))
    return u"enregistré, mais « %1 » n'est pas un numéro d'entreprise : dix chiffres, dont les deux derniers "
           "contrôlent les autres"_s.arg(texte);
  return AvisHoraire(champ, texte);
}

/// Another site of that name, by which the tree knows sites; null for none.
const TImplantation* HomonymeDe(const TImplantation& site) {
  for (const TImplantation& autre : *Globals.Eleves->Implantations)
    if (&autre != &site && !site.LibelleCourt.isEmpty() &&
        autre.LibelleCourt.compare(site.LibelleCourt, Qt::CaseInsensitive) == 0)
      return &autre;
  return nullptr;
}

TTableChamps<TImplantation> ChampsImplantation() {
  return {{{.Nom = u"edLibelleCourt"_s,
            .Libelle = u"Nom de l'implantation:"_s,
            .Longueur = kNomImplantationMaximum},
           Membre(&TImplantation::LibelleCourt)}};
}

}  // namespace

TFrmMonEcole::TFrmMonEcole(TContexteEcran& contexte)
    : Ecole(contexte, ChampsEcole()),
      grdImplantation({{u"Code Implantation"_s, 200}, {u"Nom de l'implantation"_s, 480}}),
      Implantation(ChampsImplantation(), TChamps::Aussitot),
      contexte_(contexte) {
  Ecole.Avis = AvisEcole;
  Implantation.SurEnregistrer = [this](const TChamp&) { grdImplantationCellEdited(); };
  liens_ += AnnoncerRefus(Implantation, contexte.Principal);
  liens_ += grdImplantation.SurChoix.Suivre([this] { MontrerImplantation(); });
}

void TFrmMonEcole::FormShow() {
  if (Globals.Parametres) Ecole.Remplir();
  RemplirImplantations();
  grdImplantation.ChoisirLigne(0);
}

// Sites

void TFrmMonEcole::RemplirImplantations() {
  const TGrille::TLot lot(grdImplantation);
  grdImplantation.Vider();
  if (Globals.Eleves == nullptr) return;
  for (TImplantation& site : *Globals.Eleves->Implantations)
    grdImplantation.Ajouter({site.Code, site.LibelleCourt}, &site);
}

// A name that is refused keeps its row in hand.
void TFrmMonEcole::MontrerImplantation() {
  const int ligne = grdImplantation.LigneCourante();
  if (ligne == choisie_) return;
  if (!Implantation.QuitterTout()) {
    grdImplantation.ChoisirLigne(choisie_);
    return;
  }
  choisie_ = ligne;
  Implantation.Montrer(ligne < 0 ? nullptr : grdImplantation.Ligne(ligne).Objet.En<TImplantation>());
}

// What is refused has its old name again, whatever the reason.
void TFrmMonEcole::grdImplantationCellEdited() {
  TImplantation& site = *Implantation.Objet();
  TImplantations& sites = *Globals.Eleves->Implantations;
  sites.AddImplantation(site);
  sites.Save();
  if (site.Status != TStatus::Inchange)
    throw Exception(u"Cette implantation n'existe plus : un autre poste l'a supprimée."_s);
  grdImplantation.Ecrire(choisie_, 1, site.LibelleCourt);
  const TImplantation* autre = HomonymeDe(site);
  if (autre == nullptr)
    contexte_.Principal.Etat(TNiveauEtat::Succes, u"Enregistré : implantation "_s % site.Code);
  else
    contexte_.Principal.Etat(TNiveauEtat::Alerte,
                             u"Enregistré, mais l'implantation %1 porte le même nom : la liste des élèves "
                             u"les réunira au prochain chargement"_s.arg(autre->Code));
}

// Leaving

bool TFrmMonEcole::LaisserChamp() { return Ecole.QuitterTout() && Implantation.QuitterTout(); }

QString TFrmMonEcole::EnSuspens() const {
  return Ecole.Modifies() || Implantation.Modifies() ? u"dénomination non enregistrée"_s : QString();
}

bool TFrmMonEcole::FormCloseQuery() {
  return EnSuspens().isEmpty() ||
         contexte_.Dialogues().ConfirmerGrave(
             u"Ce que vous avez introduit n'est pas enregistré. Voulez-vous l'abandonner ?"_s);
}

void TFrmMonEcole::FormClose() { contexte_.Principal.Envoyer({TCodeMessage::ImplantationsChange, {}}); }
