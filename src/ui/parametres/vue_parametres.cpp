#include "ui/parametres/vue_parametres.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <functional>

#include "screens/parametres/frm_parametres.h"
#include "ui/commun/bouton.h"
#include "ui/commun/liaison_champs.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

VueParametres::VueParametres(TFrmParametres& form, QWidget* parent)
    : QScrollArea(parent), form_(form), pages_(new QTabWidget) {
  ColonneEcran(*this, u"Paramètres"_s)->addWidget(pages_, 1);
  CreerPages();
  CreerGroupes();
  const auto professeur = [this] { professeur_->setVisible(form_.BoutonProfesseurVisible()); };
  liens_ += form.SurChangement.Suivre(professeur);
  professeur();
  pages_->setAccessibleName(u"Pages des paramètres"_s);
  setFocusProxy(pages_);  // a field that is left is written: none is entered by itself
}

QBoxLayout* VueParametres::CreerPage(const QString& titre) {
  auto* contenu = new QWidget;
  contenu->setMaximumWidth(Theme::Px(960));
  auto* colonne = new QVBoxLayout(contenu);
  colonne->setContentsMargins(0, Theme::Px(16), 0, 0);
  colonne->setSpacing(Theme::Px(12));
  auto* page = new QWidget;
  auto* rang = new QHBoxLayout(page);
  rang->setContentsMargins(0, 0, 0, 0);
  rang->addWidget(contenu, 1);
  rang->addStretch();
  pages_->addTab(page, titre);
  return colonne;
}

void VueParametres::CreerPages() {
  for (const TPageParametres& page : form_.Pages) {
    QBoxLayout* colonne = CreerPage(page.Titre);
    auto* liaison = new LiaisonChamps(*page.Champs, this);
    liaisons_.push_back(liaison);
    auto* rang = new QHBoxLayout;
    rang->setSpacing(Theme::Px(8));
    colonne->addLayout(CreerFormulaire(*liaison));
    colonne->addLayout(rang);
    if (page.Champs->Indice(u"memFacture"_s) >= 0) {
      AjouterInsertion(*rang, u"Insérer la communication structurée"_s, u"memFacture"_s, kChampComStruct);
      AjouterInsertion(*rang, u"Insérer la date de paiement"_s, u"memFacture"_s, kChampDatePaiement);
    }
    if (page.Champs->Indice(u"memFraisEffectifs"_s) >= 0) {
      AjouterInsertion(*rang, u"Insérer la date de paiement"_s, u"memFraisEffectifs"_s, kChampDatePaiement);
      AjouterBouton(*rang, u"Ajouter le texte légal"_s, &TFrmParametres::AdvGlowButton2Click);
    }
    if (page.Champs->Indice(u"edServeurFTP"_s) >= 0) CreerEntretien(*rang);
    rang->addStretch(1);
    colonne->addStretch(1);
  }
}

QPushButton* VueParametres::AjouterBouton(QBoxLayout& rang, const QString& texte,
                                          void (TFrmParametres::*faire)()) {
  QPushButton* bouton = BoutonSimple(texte);
  connect(bouton, &QPushButton::clicked, this, [this, faire] { std::invoke(faire, form_); });
  rang.addWidget(bouton);
  return bouton;
}

void VueParametres::CreerGroupes() {
  QBoxLayout* colonne = CreerPage(u"Groupes de paiements"_s);
  auto* liste = new VueGrille(form_.lbGroupe, u"Groupes de paiements"_s, u"Parametres/Groupes"_s);
  liste->setMinimumHeight(liste->HauteurPour(6));
  connect(liste, &VueGrille::Suppression, this, [this] { form_.btnDeleteFaitClick(); });
  auto* rang = new QHBoxLayout;
  rang->setSpacing(Theme::Px(8));
  AjouterBouton(*rang, u"Ajouter"_s, &TFrmParametres::btnAjoutFaitClick);
  QPushButton* supprimer = BoutonSupprimer(u"Supprimer le groupe"_s);
  connect(supprimer, &QPushButton::clicked, this, [this] { form_.btnDeleteFaitClick(); });
  rang->addWidget(supprimer);
  rang->addStretch(1);
  colonne->addWidget(liste, 1);
  colonne->addLayout(rang);
}

void VueParametres::CreerEntretien(QBoxLayout& rang) {
  etape1_ = AjouterBouton(rang, u"Mise à jour de la base de données"_s, &TFrmParametres::btnEtape1Click);
  etape1_->setContextMenuPolicy(Qt::PreventContextMenu);
  etape1_->installEventFilter(this);
  professeur_ =
      AjouterBouton(rang, u"Activer le mode professeur"_s, &TFrmParametres::btnBoutonProfesseurClick);
}

// The settings without a field: Shift and the right button, or Shift and the key of the context menu.
bool VueParametres::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet != etape1_) return QScrollArea::eventFilter(objet, evenement);
  const auto* souris =
      evenement->type() == QEvent::MouseButtonPress ? static_cast<QMouseEvent*>(evenement) : nullptr;
  const auto* touche = evenement->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(evenement) : nullptr;
  const bool parSouris = souris != nullptr && souris->button() == Qt::RightButton;
  const bool parTouche = touche != nullptr && (touche->key() == Qt::Key_Menu || touche->key() == Qt::Key_F10);
  if (!parSouris && !parTouche) return false;
  if (!static_cast<QInputEvent*>(evenement)->modifiers().testFlag(Qt::ShiftModifier)) return false;
  form_.btnEtape1MouseDown();
  return true;
}

void VueParametres::AjouterInsertion(QBoxLayout& rang, const QString& texte, const QString& champ,
                                     const QString& quoi) {
  QPushButton* bouton = BoutonSimple(texte);
  bouton->setToolTip(u"Ajoute "_s % quoi % u" à l'endroit du curseur");
  bouton->setFocusPolicy(Qt::TabFocus);  // a press leaves no field, which would store and trim it first
  connect(bouton, &QPushButton::clicked, this, [this, champ, quoi] { Inserer(champ, quoi); });
  rang.addWidget(bouton);
}

// The hand is back in the field, so that leaving it stores what was inserted.
void VueParametres::Inserer(const QString& champ, const QString& quoi) {
  auto* lignes = findChild<QPlainTextEdit*>(champ);
  QTextCursor curseur = lignes->textCursor();
  lignes->setFocus(Qt::OtherFocusReason);
  const int place = form_.Inserer(champ, curseur.selectionStart(), curseur.selectionEnd(), quoi);
  if (place < 0) return;
  curseur = lignes->textCursor();
  curseur.setPosition(place);
  lignes->setTextCursor(curseur);
}
