#include "workflows/reservation.h"

#include "core/accord.h"
#include "core/dialogues.h"
#include "core/formats.h"
#include "meals/generation_repas.h"
#include "pupils/eleves.h"
#include "workflows/prix_repas.h"

using namespace Qt::StringLiterals;

namespace {

/// Columns whose price the account has to cover.
constexpr int kDerniereColonnePayante = 2;

}  // namespace

TGrilleCommandes::TGrilleCommandes(IDialogues& dialogues, const TGenerationRepas& generation)
    : dialogues_(dialogues), generation_(generation) {}

bool TGrilleCommandes::EstVerrouillee() const {
  return generation_.AvecVerrou && courant_ != nullptr && !courant_->CommandeValide(jour_);
}

bool TGrilleCommandes::PeutQuitter() {
  if (!EstVerrouillee()) return true;
  dialogues_.Message(u"Attention le choix du sandwich est incomplet !"_s);
  return false;
}

bool TGrilleCommandes::PeutPasser(const TEleve* eleve, TDateTime jour) const {
  return (eleve == courant_ && jour == jour_) || !EstVerrouillee();
}

bool TGrilleCommandes::Selectionner(TEleve* eleve, TDateTime jour) {
  if (!PeutPasser(eleve, jour)) return PeutQuitter();
  courant_ = eleve;
  jour_ = jour;
  return true;
}

TEffetClic TGrilleCommandes::Cliquer(TEleve& eleve, TDateTime jour, int colonne) {
  const TEffetClic effet = CliquerSansDire(eleve, jour, colonne);
  if (effet == TEffetClic::Verrou) PeutQuitter();
  if (effet == TEffetClic::Insuffisant) dialogues_.Message(u"Solde insuffisant"_s);
  if (effet == TEffetClic::AutrePoste)
    dialogues_.Message(
        u"Un autre poste vient de commander pour %1 ce jour-là : sa commande est affichée."_s.arg(
            eleve.NomComplet()));
  return effet;
}

TEffetClic TGrilleCommandes::CliquerSansDire(TEleve& eleve, TDateTime jour, int colonne) {
  if (!PeutPasser(&eleve, jour)) return TEffetClic::Verrou;
  if (colonne < 0 || colonne > generation_.NombreColonnes) return TEffetClic::Ignore;
  courant_ = &eleve;
  jour_ = jour;
  return colonne == 0 ? TEffetClic::Ignore : Appliquer(eleve, jour, colonne);
}

TEffetClic TGrilleCommandes::Appliquer(TEleve& eleve, TDateTime jour, int colonne) {
  const Currency prix = PrixCommande(eleve, generation_);
  const auto flag = ColonnesCommande()[static_cast<std::size_t>(colonne - 1)].Flag;
  const TCommande* commande = eleve.GetCommande(jour);
  const bool marquee = commande != nullptr && commande->*flag;
  if (!marquee && generation_.AvecSolde && colonne <= kDerniereColonnePayante &&
      eleve.SoldeRepas() - prix < Currency())
    return TEffetClic::Insuffisant;
  const bool change = eleve.SetCommande(jour, prix, [&](TCommande& c) {
    if (marquee)
      c.*flag = false;
    else
      Marquer(c, colonne);
  });
  if (!change) return TEffetClic::AutrePoste;
  return marquee ? TEffetClic::Efface : TEffetClic::Marque;
}

TDateTime JourPrecedent(TDateTime jour) { return jour - (JourLundi1(jour) == 1 ? 3 : 1); }

TDateTime JourSuivant(TDateTime jour) { return jour + (JourLundi1(jour) == 5 ? 3 : 1); }

QString TexteSoldeTickets(int solde) {
  switch (solde) {
    case -1:
      return u"1 ticket manquant"_s;
    case 0:
      return u"Aucun ticket disponible"_s;
    case 1:
      return u"1 ticket disponible"_s;
    default:
      return QString::number(qAbs(solde)) % (solde < 0 ? u" tickets manquants" : u" tickets disponibles");
  }
}

QString TBilanReprise::Texte() const {
  QStringList textes{Compter(Reprises, u"commande reprise"_s, u"commandes reprises"_s)};
  if (Incompletes > 0) textes += Compter(Incompletes, u"incomplète"_s, u"incomplètes"_s);
  if (!Insuffisants.isEmpty()) textes += u"solde insuffisant : " % Insuffisants.join(u", ");
  if (!AutresPostes.isEmpty()) textes += u"commandés par un autre poste : " % AutresPostes.join(u", ");
  return textes.join(u"  ·  ");
}

namespace {

/// Clicks each column that the other order has, up to the first that is refused.
void Repeter(TGrilleCommandes& grille, TEleve& eleve, const TCommande& source, TDateTime jour,
             TBilanReprise& bilan) {
  bool reprise = false;
  for (int c = 1; c <= grille.Generation().NombreColonnes; ++c) {
    if (!(source.*ColonnesCommande()[static_cast<std::size_t>(c - 1)].Flag)) continue;
    const TEffetClic effet = grille.CliquerSansDire(eleve, jour, c);
    if (effet == TEffetClic::Insuffisant) bilan.Insuffisants += eleve.NomComplet();
    if (effet == TEffetClic::AutrePoste) bilan.AutresPostes += eleve.NomComplet();
    if (effet != TEffetClic::Marque) break;
    reprise = true;
  }
  bilan.Reprises += reprise;
}

}  // namespace

TBilanReprise RepeterCommandes(TGrilleCommandes& grille, const TClasse& classe, TDateTime source,
                               TDateTime jour) {
  TBilanReprise bilan;
  for (TEleve* eleve : classe.ListeEleves) {
    const TCommande* avant = eleve->GetCommande(source);
    const TCommande* deja = eleve->GetCommande(jour);
    const bool libre = deja == nullptr || (!deja->EstUnRepas() && deja->EstComplete());
    if (eleve->FlgRadie || !libre || avant == nullptr || !avant->EstUnRepas()) continue;
    if (grille.Generation().AvecVerrou && !avant->EstComplete())
      ++bilan.Incompletes;
    else
      Repeter(grille, *eleve, *avant, jour, bilan);
  }
  return bilan;
}
