#include "screens/services/frm_liste_frais.h"

#include <QScopedValueRollback>
#include <algorithm>

#include "core/accord.h"
#include "core/mois.h"
#include "screens/principal/arbre_eleves.h"

namespace {

using T = TFrais;

constexpr int kLibelleMaximum = 200;

TTextesListe Textes() {
  return {.Titre = u"Liste des frais scolaires"_s,
          .Liste = u"Frais"_s,
          .Lecture = u"Frais"_s,
          .Nouveau = u"Nouveau frais"_s,
          .Modification = u"Modification du frais"_s,
          .Enregistre = u"Frais enregistré"_s,
          .Supprime = u"Frais supprimé"_s,
          .Retabli = u"Frais rétabli"_s,
          .Question =
              u"Voulez-vous supprimer ce frais ?\r\nATTENTION : Le montant de ce frais sera supprimé chez "
              "tous les élèves concerné."_s,
          .Vide = u"Aucun frais."_s,
          .VideSuite =
              u"Un frais est ce que l'école demande en plus des services : excursion, natation, "
              "photocopies."_s};
}

std::vector<TColonneDe<T>> Colonnes() {
  return {{{u"Libellé des frais"_s, 460}, [](const T& f) { return f.Libelle; }},
          {{u"Montant"_s, 110, TGenre::Prix}, [](const T& f) { return f.Cout; }},
          {{u"Mois"_s, 130, TGenre::Mois}, [](const T& f) { return f.Mois; }},
          {{u"Concerne"_s, 130, TGenre::Eleves}, [](const T& f) { return f.NombreElevesFrais(); }}};
}

/// The first entry is that of a fee without month.
QStringList TextesMois() { return QStringList{QString()} + NomsMoisScolaires(); }

TTableChamps<T> ChampsFrais() {
  using enum TGenreChamp;
  return {
      {{.Nom = u"edLibelle"_s, .Libelle = u"Libellé du frais:"_s, .Longueur = kLibelleMaximum},
       Membre(&T::Libelle)},
      {{.Nom = u"edMontant"_s,
        .Libelle = u"Montant total :"_s,
        .Genre = Montant,
        .Obligatoire = true,
        .Unite = u"euros"_s},
       Membre(&T::Cout)},
      // A list of pupils, whatever it was that served to tick them.
      {{.Nom = u"cmbConcerne"_s,
        .Libelle = u"Le frais concerne:"_s,
        .Genre = Choix,
        .Choix = TextesTypeFraisChoix},
       {[](const T& f) { return static_cast<int>(f.TypeFrais); },
        [](T& f, const TValeurVue&) { f.TypeFrais = TTypeFrais::Eleves; }}},
      {{.Nom = u"cmbMois"_s, .Libelle = u"Imputé au mois de:"_s, .Genre = Choix, .Choix = TextesMois},
       {[](const T& f) { return IndiceMoisScolaire(f.Mois) + 1; },
        [](T& f, const TValeurVue& indice) {
          const auto i = static_cast<std::size_t>(ValeurEn<int>(indice));
          f.Mois = i == 0 ? 0 : kMoisScolaires[i - 1];
        }}},
      {{.Nom = u"cbPrevisionnel"_s, .Libelle = u"Frais prévisionnel"_s, .Genre = Coche},
       Membre(&T::FlgPrevisionnel)},
      {{.Nom = u"cbNonObligatoire"_s, .Libelle = u"Frais non obligatoire"_s, .Genre = Coche, .Suite = true},
       Membre(&T::FlgNonObligatoire)},
      {{.Nom = u"cbService"_s, .Libelle = u"Service"_s, .Genre = Coche, .Suite = true},
       Membre(&T::FlgService)},
  };
}

/// The whole school is its pupils; a class of the staff is ticked by itself.
bool EstDuPersonnel(const TNoeud& noeud) {
  const TClasse* classe = noeud.Objet.En<TClasse>();
  return classe != nullptr && CategorieDeClasse(classe->CodeClasse) == TCategorie::Personnel;
}

}  // namespace

TFrmListeFrais::TFrmListeFrais(TContexteEcran& contexte)
    : TFrmListeDe(contexte, ::Textes(), Colonnes(), ChampsFrais()),
      attribution_(contexte.Controleur),
      concerne_(Champs().Indice(u"cmbConcerne"_s)),
      mois_(Champs().Indice(u"cmbMois"_s)) {
  arbre_.CasesACocher = true;
}

void TFrmListeFrais::FormShow() {
  ConstruireArbre(arbre_, true, true);
  TFrmListeDe::FormShow();
  liens_ += Champs().SurChangement.Suivre([this](int champ) {
    if (champ == concerne_) SurCoches();
  });
}

TCollection<T>& TFrmListeFrais::Collection() const { return *Globals.ListeFrais; }

// Who owes it

TEtatCoche TFrmListeFrais::EtatDe(const TNoeud* noeud) const {
  if (const TEleve* eleve = noeud != nullptr ? noeud->Objet.En<TEleve>() : nullptr)
    return attribution_.EstCoche(*eleve) ? TEtatCoche::Tous : TEtatCoche::Aucun;
  bool aucun = true, tous = true;
  for (const auto& enfant : Sous(noeud)) {
    if (EstDuPersonnel(*enfant)) continue;
    const TEtatCoche etat = EtatDe(enfant.get());
    aucun = aucun && etat == TEtatCoche::Aucun;
    tous = tous && etat == TEtatCoche::Tous;
  }
  return aucun ? TEtatCoche::Aucun : tous ? TEtatCoche::Tous : TEtatCoche::Certains;
}

bool TFrmListeFrais::EstPaye(const TNoeud& noeud) const {
  const TEleve* eleve = noeud.Objet.En<TEleve>();
  return eleve != nullptr && attribution_.EstPaye(*eleve);
}

void TFrmListeFrais::Cocher(const TNoeud* noeud, bool coche) {
  if (Ecrit() && !EstOccupe()) CocherSous(noeud, coche);
  SurCoches();
  Annoncer();
}

void TFrmListeFrais::CocherSous(const TNoeud* noeud, bool coche) {
  if (const TEleve* eleve = noeud != nullptr ? noeud->Objet.En<TEleve>() : nullptr)
    attribution_.Cocher(*eleve, coche);
  for (const auto& enfant : Sous(noeud))
    if (!EstDuPersonnel(*enfant)) CocherSous(enfant.get(), coche);
}

QString TFrmListeFrais::TexteCoches() const {
  const int nombre = attribution_.NombreCoches();
  return nombre == 0 ? u"Aucun élève"_s : TexteDe(TGenre::Eleves, nombre);
}

void TFrmListeFrais::btnFraisPayeClick() {
  attribution_.DefinirModePaye(!ModePaye());
  SurCoches();
  Annoncer();
}

QString TFrmListeFrais::TexteMode() const {
  return ModePaye() ? u"Mode frais déjà payés"_s : u"Mode frais non payés"_s;
}

void TFrmListeFrais::OuvrirCoches(TFrais* frais) {
  range_ = false;
  if (frais != nullptr) frais->InvalideElevesFrais();
  attribution_.Ouvrir(frais);
  SurCoches();
}

void TFrmListeFrais::MontrerLigne() {
  TFrmListeDe::MontrerLigne();
  OuvrirCoches(Courant());
}

// The first choice is "toute l'école", and nobody has chosen it.
void TFrmListeFrais::MontrerNouveau() {
  TFrmListeDe::MontrerNouveau();
  Champs().Proposer(concerne_, static_cast<int>(TTypeFrais::Eleves));
  OuvrirCoches(nullptr);
}

// Storing

bool TFrmListeFrais::Controler() {
  return Champs().Entier(mois_) > 0 || Champs().Refuser(mois_, u"Un mois d'imputation est obligatoire."_s);
}

// The fee first, then its pupils one by one: stopped half-way it is stored, and the next save goes on.
void TFrmListeFrais::Ranger(bool nouveau) {
  TFrmListeDe::Ranger(nouveau && !range_);
  range_ = true;
  try {
    attribution_.Enregistrer(*Courant());
  } catch (const Exception&) {
    SurCoches();
    Remplir();
    throw;
  }
  Remplir();
}

TCellules TFrmListeFrais::Oter() {
  TFrais& frais = *Courant();
  const bool recurent = frais.FlgRecurent;
  const int cle = frais.Id;
  TAttributionFrais::TLignesRetirees lignes;
  try {
    if (frais.TypeFrais == TTypeFrais::Eleves) attribution_.RetirerATous(frais, lignes);
    TCellules valeurs = TFrmListeDe::Oter();
    retirees_ = std::move(lignes);
    recurentSupprime_ = recurent;
    rendu_ = 0;
    return valeurs;
  } catch (const Exception& e) {
    const QString reste = RendreApresRefus(cle, lignes);
    throw Exception(e.Message % reste);
  }
}

/// The fee stays, and so do its pupils; what could not be given back is said.
QString TFrmListeFrais::RendreApresRefus(int cle, TAttributionFrais::TLignesRetirees& lignes) {
  TFrais* frais = Collection().ParCle(cle);
  try {
    if (frais != nullptr) attribution_.Rendre(*frais, lignes);
  } catch (const Exception&) {  // told with the first refusal
  }
  Remplir();
  OuvrirCoches(Courant());
  return lignes.empty()
             ? QString()
             : QString(u"\n\nLe frais a déjà été retiré à " % CompterEleves(std::ssize(lignes)) % u'.');
}

// Stopped half-way the fee is there; the next try goes on with its pupils.
void TFrmListeFrais::Remettre(const TCellules& valeurs) {
  if (Collection().ParCle(rendu_) == nullptr) {
    const QScopedValueRollback recurent(recurent_, recurentSupprime_);
    TFrmListeDe::Remettre(valeurs);
    rendu_ = Courant()->Id;
  }
  attribution_.Rendre(*Collection().ParCle(rendu_), retirees_);
  Remplir();
}
