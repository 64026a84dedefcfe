#include "ui/commun/galerie.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>

#include "ui/commun/bouton.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/compteur.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/feuille_progression.h"
#include "ui/commun/grille_mois.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/photo_eleve.h"
#include "ui/commun/pied_de_grille.h"
#include "ui/commun/saisie.h"
#include "ui/commun/texte.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

namespace {

QHBoxLayout* Ligne(QBoxLayout* dans, int espace = 8) {
  auto* ligne = new QHBoxLayout;
  ligne->setSpacing(Theme::Px(espace));
  dans->addLayout(ligne);
  return ligne;
}

QVBoxLayout* Colonne(QWidget* dans) {
  auto* colonne = new QVBoxLayout(dans);
  colonne->setContentsMargins(0, 0, 0, 0);
  return colonne;
}

template <class Champ>
Champ* Nomme(Champ* champ, const char* nom) {
  champ->setAccessibleName(QString::fromUtf8(nom));
  return champ;
}

QString T(const char* texte) { return QString::fromUtf8(texte); }

void RemplirFrais(TGrille& grille) {
  grille.DefinirColonnes({{T("Libellé"), 180},
                          {T("Mois"), 92},
                          {T("Dû"), 80, TAlignement::Droite, TOrdre::Nombre},
                          {T("Payé"), 80, TAlignement::Droite, TOrdre::Nombre},
                          {T("État"), 84}});
  grille.Etats = {{},
                  {T("Payé"), T("dialog-ok-apply")},
                  {T("Dû"), T("data-warning")},
                  {T("Inconnu"), T("data-error")},
                  {T("En cours"), T("data-information")}};
  const struct {
    const char *Libelle, *Mois, *Du, *Paye;
    int Etat;
  } lignes[] = {{"Photocopies", "Septembre", "25,00 €", "25,00 €", 1},
                {"Natation, 1er trimestre", "Octobre", "36,00 €", "36,00 €", 1},
                {"Théâtre « Le petit soldat », avec le car et le goûter", "Novembre", "8,50 €", "-8,50 €", 3},
                {"Classes de mer", "Février", "1 185,00 €", "", 2},
                {"Services octobre", "Octobre", "51,15 €", "51,15 €", 4}};
  for (const auto& [libelle, mois, du, paye, etat] : lignes)
    grille.Ajouter({T(libelle), T(mois), T(du), T(paye)}, {}, etat);
  grille.ChoisirLigne(3);
}

void RemplirReleve(TGrille& grille) {
  grille.DefinirColonnes({{T("Catégorie"), 160},
                          {T("Date"), 90, TAlignement::Gauche, TOrdre::Date},
                          {T("Entrée"), 64, TAlignement::Droite},
                          {T("Montant"), 80, TAlignement::Droite, TOrdre::Nombre}});
  for (const char* groupe : {"Garderie du matin", "Garderie du soir", "Repas"}) {
    grille.AjouterTete({T(groupe), T("3 relevés"), {}, T("3,00 €")});
    for (const char* jour : {"lun. 05/11", "mar. 06/11", "jeu. 08/11"})
      grille.Ajouter({{}, T(jour), T("07:32"), T("1,00 €")});
  }
  grille.Fermer(8, true);
  grille.ChoisirLigne(2);
}

}  // namespace

Galerie::Galerie() : contenu_(new QWidget) {
  RemplirFrais(frais_);
  RemplirReleve(releve_);
  vide_.DefinirColonnes({{T("Nom de la classe"), 120}, {T("Implantation"), 100}});
  vide_.CasesACocher = true;
  auto* grille = new QGridLayout(this);
  const int marge = Theme::Px(16);
  grille->setContentsMargins(marge, marge, marge, marge);
  grille->setHorizontalSpacing(Theme::Px(24));
  grille->setVerticalSpacing(Theme::Px(12));
  auto* dedans = new QGridLayout(contenu_);
  dedans->setContentsMargins(0, 0, 0, 0);
  dedans->setHorizontalSpacing(Theme::Px(24));
  dedans->setVerticalSpacing(Theme::Px(12));
  dedans->addWidget(Commandes(), 0, 0);
  dedans->addWidget(Champs(), 1, 0);
  dedans->addWidget(Etats(), 2, 0);
  dedans->addWidget(Mois(), 3, 0);
  dedans->addWidget(Listes(), 0, 1, 5, 1);
  dedans->setRowStretch(4, 1);
  dedans->setColumnStretch(1, 1);
  auto* defilement = new QScrollArea;
  defilement->setWidgetResizable(true);
  defilement->setFrameShape(QFrame::NoFrame);
  defilement->setWidget(contenu_);
  grille->addWidget(defilement);
}

// The views look at the grids until their end.
Galerie::~Galerie() { delete contenu_; }

QWidget* Galerie::Commandes() {
  auto* bloc = new QWidget;
  QVBoxLayout* colonne = Colonne(bloc);
  colonne->addWidget(new TitreEcran(T("Titre d'écran")));
  auto* titre = new TitreSection(T("Titre de section"));
  titre->DefinirNote(T("une note secondaire"));
  titre->AjouterAction(BoutonDiscret(T("Ajouter"), T("list-add")));
  titre->AjouterAction(BoutonSupprimer(T("Supprimer le relevé")));
  colonne->addWidget(titre);
  QHBoxLayout* boutons = Ligne(colonne);
  boutons->addWidget(BoutonPrincipal(T("Commande principale")));
  boutons->addWidget(BoutonSimple(T("Commande")));
  QPushButton* inactif = BoutonSimple(T("Indisponible"), T("document-edit"));
  inactif->setEnabled(false);
  boutons->addWidget(inactif);
  boutons->addWidget(BoutonDiscret(T("Copier"), T("edit-copy")));
  boutons->addStretch(1);
  return bloc;
}

QWidget* Galerie::Champs() {
  auto* bloc = new QWidget;
  QVBoxLayout* colonne = Colonne(bloc);
  QHBoxLayout* ligne = Ligne(colonne);
  auto* lecture = Nomme(new QLineEdit(T("Lecture")), "Lecture");
  lecture->setReadOnly(true);
  auto* inactif = Nomme(new QLineEdit(T("Inactif")), "Inactif");
  inactif->setEnabled(false);
  auto* liste = Nomme(new QComboBox, "Liste");
  liste->addItems({T("Novembre"), T("Décembre")});
  auto* libre = Nomme(new QComboBox, "Liste libre");
  libre->setEditable(true);
  libre->addItem(T("scanning"));
  for (QWidget* champ : std::initializer_list<QWidget*>{Nomme(new QLineEdit(T("Repos")), "Repos"), lecture,
                                                        inactif, liste, libre})
    ligne->addWidget(champ);
  QHBoxLayout* valeurs = Ligne(colonne);
  auto* montant = new SaisieMontant;
  montant->DefinirMontant(Currency::Brut(-1829000));
  auto* heure = new SaisieHeure;
  heure->DefinirHeure(EncodeTime(7, 32));
  auto* nombre = Nomme(new QSpinBox, "Nombre");
  valeurs->addWidget(new ChampLibelle(T("Coût:"), montant));
  valeurs->addWidget(new ChampLibelle(T("Heure:"), heure));
  valeurs->addWidget(nombre);
  auto* date = new SaisieDate;
  date->setText(T("31/02/2010"));
  auto* naissance = new ChampLibelle(T("Date de naissance:"), date, ChampLibelle::Dessus);
  naissance->MontrerFaute(T("La date de naissance introduite est incorrecte."));
  QHBoxLayout* fautes = Ligne(colonne);
  fautes->addWidget(naissance);
  auto* long_ = Nomme(new QPlainTextEdit(T("Plusieurs\nlignes")), "Remarque");
  long_->setMaximumHeight(Theme::Px(60));
  fautes->addWidget(long_);
  fautes->addWidget(new PhotoEleve);
  return bloc;
}

QWidget* Galerie::Etats() {
  auto* bloc = new QWidget;
  QVBoxLayout* colonne = Colonne(bloc);
  QHBoxLayout* cases = Ligne(colonne, 20);
  auto* coche = new QCheckBox(T("Coché"));
  coche->setChecked(true);
  auto* partiel = new QCheckBox(T("Partiel"));
  partiel->setTristate(true);
  partiel->setCheckState(Qt::PartiallyChecked);
  auto* eteint = new QCheckBox(T("Inactif"));
  eteint->setChecked(true);
  eteint->setEnabled(false);
  auto* choisi = new QRadioButton(T("Choisi"));
  choisi->setChecked(true);
  for (QWidget* boite : std::initializer_list<QWidget*>{coche, new QCheckBox(T("Décoché")), partiel, eteint,
                                                        choisi, new QRadioButton(T("Autre"))})
    cases->addWidget(boite);
  cases->addStretch(1);
  QHBoxLayout* marques = Ligne(colonne, 20);
  const struct {
    const char *Icone, *Texte;
  } etats[] = {{"dialog-ok-apply", "Payé"},
               {"data-warning", "Dû"},
               {"data-error", "Inconnu"},
               {"data-information", "En cours"}};
  for (const auto& [icone, texte] : etats) {
    auto* marque = new MarqueEtat;
    marque->Definir(T(icone), T(texte));
    marques->addWidget(marque);
  }
  marques->addStretch(1);
  QHBoxLayout* compteurs = Ligne(colonne, 24);
  auto* lignes = new Compteur(T("lignes dans le fichier"));
  lignes->Definir(1280);
  auto* anomalies = new Compteur(T("anomalies"));
  anomalies->Definir(5);
  anomalies->DefinirRole(TRole::Alerte);
  auto* inconnu = new Compteur(T("total"));
  inconnu->setEnabled(false);
  for (Compteur* compteur : {lignes, anomalies, inconnu}) compteurs->addWidget(compteur);
  compteurs->addStretch(1);
  return bloc;
}

QWidget* Galerie::Mois() {
  auto* mois = new GrilleMois(
      {T("Rentre à son domicile pendant midi"), T("Participe à l'étude"), T("Paiement forfaitaire")});
  for (int m = 0; m < GrilleMois::kMois; ++m) mois->Definir(1, m, true);
  mois->Definir(2, 2, true);
  return mois;
}

QWidget* Galerie::Listes() {
  auto* bloc = new QWidget;
  QVBoxLayout* colonne = Colonne(bloc);
  auto* titre = new TitreSection(T("Frais et paiements"));
  auto* filtre = new ChampFiltre;
  filtre->setMaximumWidth(Theme::Px(200));
  titre->AjouterAction(filtre);
  colonne->addWidget(titre);
  auto* frais = new VueGrille(frais_, T("Frais et paiements"), {});
  frais->Filtrer(*filtre);
  frais->setMinimumHeight(frais->HauteurPour(5));
  auto* pied = new PiedDeGrille(*frais);
  pied->Definir({{T("Total"), {}, T("1 305,65 €"), T("103,65 €")}, {T("Balance"), {}, {}, T("-1 202,00 €")}});
  colonne->addWidget(frais);
  colonne->addWidget(pied);
  auto* feuille = new FeuilleProgression;
  feuille->Demarrer(T("Transfert en cours"), 411, T("Elève actuellement traité :"),
                    T("La fenêtre reste ouverte."));
  feuille->Avancer(184, T("HENROTTE Maxime"));
  colonne->addWidget(feuille);
  QHBoxLayout* deux = Ligne(colonne, 24);
  auto* releve = new VueGrille(releve_, T("Relevé mensuel"), {});
  releve->setMinimumHeight(releve->HauteurPour(9));
  deux->addWidget(releve, 3);
  auto* vide = new VueGrille(vide_, T("Classes"), {});
  deux->addWidget(vide, 2);
  auto* etat = new EtatVide(vide);
  etat->Montrer(T("Aucune classe"), T("Importez d'abord le registre."), T("Importer"));
  return bloc;
}
