#include "ui/commun/liaison_champs.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QGridLayout>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScopedValueRollback>

#include "ui/commun/champ_libelle.h"
#include "ui/commun/champ_texte.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/rangee_pliante.h"
#include "ui/commun/saisie.h"
#include "ui/commun/texte.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

template <class Widget>
QWidget* Nouveau(const TChamp&) {
  return new Widget;
}

QWidget* NouveauTexte(const TChamp& champ) {
  auto* texte = new ChampTexte;
  if (champ.Longueur > 0) texte->setMaxLength(champ.Longueur);
  return texte;
}

QWidget* NouvelEntier(const TChamp& champ) {
  auto* entier = new ChampTexte;
  entier->setMaxLength(champ.Longueur > 0 ? champ.Longueur : 9);
  return entier;
}

QWidget* NouvellesLignes(const TChamp&) {
  auto* lignes = new QPlainTextEdit;
  lignes->setTabChangesFocus(true);
  return lignes;
}

QWidget* NouvelleCoche(const TChamp& champ) { return new QCheckBox(champ.Libelle); }

QWidget* NouveauChoix(const TChamp& champ) {
  auto* choix = new QComboBox;
  if (champ.Choix) choix->addItems(champ.Choix());
  choix->setMinimumContentsLength(8);
  choix->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  return choix;
}

QWidget* NouveauTexteMontant(const TChamp& champ) {
  QWidget* texte = NouveauTexte(champ);
  static_cast<ChampTexte*>(texte)->setAlignment(Qt::AlignRight);
  return texte;
}

QWidget* NouveauSecret(const TChamp& champ) {
  QWidget* texte = NouveauTexte(champ);
  static_cast<ChampTexte*>(texte)->setEchoMode(QLineEdit::Password);
  return texte;
}

/// The point of the keypad, which a Belgian keyboard does not turn into a comma.
bool EstPointDuPave(const QEvent& evenement) {
  if (evenement.type() != QEvent::KeyPress) return false;
  const auto& touche = static_cast<const QKeyEvent&>(evenement);
  return touche.key() == Qt::Key_Period && touche.modifiers().testFlag(Qt::KeypadModifier);
}

/// In the order of TGenreChamp: how it is made, and its width at 10 points; 0 for what takes the room left.
const struct {
  QWidget* (*Creer)(const TChamp&);
  int Largeur;
} kGenres[] = {
    {NouveauTexte, 0},          {NouvellesLignes, 0},       {NouvelEntier, 64},  {Nouveau<SaisieMontant>, 88},
    {Nouveau<SaisieDate>, 116}, {Nouveau<SaisieHeure>, 64}, {NouveauChoix, 248}, {NouvelleCoche, 0},
    {NouveauTexteMontant, 88},  {NouveauSecret, 0}};

/// A list takes its width before the room behind it, and gives way on a small screen; one that goes on from
/// another field is shorter, and goes to a line of its own instead.
constexpr int kPartChoix = 100, kMoindreChoix = 112, kChoixSuite = 160;

int LargeurDe(const TChamp& champ) {
  if (champ.Largeur > 0) return champ.Largeur;
  if (champ.Genre == TGenreChamp::Choix && champ.Suite) return kChoixSuite;
  return champ.Boutons ? 0 : kGenres[static_cast<std::size_t>(champ.Genre)].Largeur;
}

/// Gives the field its width; answers its part of the room of its row.
int Dimensionner(const TChamp& champ, QWidget& widget) {
  const int largeur = LargeurDe(champ);
  if (largeur == 0) return champ.Genre == TGenreChamp::Coche ? 0 : 1;
  if (champ.Genre != TGenreChamp::Choix || champ.Suite) {
    widget.setFixedWidth(Theme::Px(largeur));
    return 0;
  }
  widget.setMinimumWidth(Theme::Px(kMoindreChoix));
  widget.setMaximumWidth(Theme::Px(largeur));
  return kPartChoix;
}

/// The caret stays where it was, as far as there is text.
void Remplacer(QPlainTextEdit& lignes, const QString& texte) {
  const int place = lignes.textCursor().position();
  lignes.setPlainText(texte);
  QTextCursor curseur = lignes.textCursor();
  curseur.setPosition(std::min(place, lignes.document()->characterCount() - 1));
  lignes.setTextCursor(curseur);
}

/// What is pasted is cut as what is typed.
QString Coupe(QPlainTextEdit& lignes, int longueur) {
  const QString texte = lignes.toPlainText();
  if (longueur <= 0 || texte.size() <= longueur) return texte;
  lignes.setPlainText(texte.left(longueur));
  lignes.moveCursor(QTextCursor::End);
  return lignes.toPlainText();
}

}  // namespace

LiaisonChamps::LiaisonChamps(TChamps& champs, QWidget* parent)
    : QObject(parent), champs_(champs), widgets_(static_cast<std::size_t>(champs.Nombre())) {
  liens_ += champs.SurChangement.Suivre([this](int champ) { Actualiser(champ); });
  liens_ += champs.SurFoyer.Suivre([this](int champ) { AllerA(champ); });
}

// Making

QWidget* LiaisonChamps::Widget(int champ, const QString& nomAccessible) {
  QWidget*& widget = widgets_.at(static_cast<std::size_t>(champ));
  if (widget == nullptr) {
    widget = Creer(champ);
    widget->setAccessibleName(NomAccessible(champs_.Champ(champ).Libelle));
    ActualiserUn(champ);
  }
  if (!nomAccessible.isEmpty()) widget->setAccessibleName(nomAccessible);
  return widget;
}

QWidget* LiaisonChamps::Creer(int champ) {
  const TChamp& quoi = champs_.Champ(champ);
  if (quoi.Boutons) return CreerBoutons(champ);
  QWidget* widget = kGenres[static_cast<std::size_t>(quoi.Genre)].Creer(quoi);
  widget->setObjectName(quoi.Nom);
  widget->installEventFilter(this);
  if (auto* ligne = qobject_cast<QLineEdit*>(widget)) {
    connect(ligne, &QLineEdit::textEdited, this,
            [this, champ](const QString& texte) { champs_.Taper(champ, texte); });
    connect(ligne, &QLineEdit::returnPressed, this, [this, champ] { Quitter(champ); });
  }
  if (auto* saisie = qobject_cast<Saisie*>(widget))  // a day chosen in the calendar
    connect(saisie, &Saisie::Saisi, this, [this, champ, saisie] {
      champs_.Taper(champ, saisie->text());
      Quitter(champ);
    });
  if (auto* lignes = qobject_cast<QPlainTextEdit*>(widget))
    connect(lignes, &QPlainTextEdit::textChanged, this, [this, champ, lignes] {
      if (lignes->hasFocus()) champs_.Taper(champ, Coupe(*lignes, champs_.Champ(champ).Longueur));
    });
  if (auto* choix = qobject_cast<QComboBox*>(widget))
    connect(choix, &QComboBox::activated, this,
            [this, champ](int indice) { champs_.Choisir(champ, indice); });
  if (auto* coche = qobject_cast<QCheckBox*>(widget))
    connect(coche, &QCheckBox::clicked, this, [this, champ](bool oui) {
      champs_.Choisir(champ, oui);
      ActualiserUn(champ);
    });
  return widget;
}

QWidget* LiaisonChamps::CreerBoutons(int champ) {
  auto* boutons = new QWidget;
  auto* rang = new QHBoxLayout(boutons);
  rang->setContentsMargins(0, 0, 0, 0);
  rang->setSpacing(Theme::Px(16));
  const TChamp& quoi = champs_.Champ(champ);
  int valeur = 0;
  for (const QString& texte : quoi.Choix()) rang->addWidget(Radio(quoi.Nom, valeur++, texte));
  rang->addStretch(1);
  boutons->setFocusProxy(rang->itemAt(0)->widget());
  return boutons;
}

QRadioButton* LiaisonChamps::Radio(const QString& nom, int valeur, const QString& texte) {
  auto* bouton = new QRadioButton(texte);
  const int champ = champs_.Indice(nom);
  bouton->setAutoExclusive(false);  // of none chosen, none is
  bouton->installEventFilter(this);
  radios_.push_back({champ, valeur, bouton});
  connect(bouton, &QRadioButton::clicked, this, [this, champ, valeur] {
    champs_.Choisir(champ, valeur);
    ActualiserUn(champ);
  });
  ActualiserUn(champ);
  return bouton;
}

void LiaisonChamps::AjouterAuRang(QBoxLayout& rang, const TPart& part, bool premier) {
  const TChamp& champ = champs_.Champ(part.Champ);
  QWidget* widget = Widget(part.Champ);
  if (champ.Suite && !premier && champ.Genre != TGenreChamp::Coche && !champ.Libelle.isEmpty())
    rang.addWidget(CreerLibelle(champ.Libelle, widget));
  rang.addWidget(widget, part.Part);
  if (!champ.Unite.isEmpty()) rang.addWidget(new Etiquette(champ.Unite));
}

QLayout* LiaisonChamps::RangSimple(const std::vector<TPart>& parts) {
  auto* rang = new QHBoxLayout;
  rang->setSpacing(Theme::Px(8));
  bool etire = false;
  for (const TPart& part : parts) {
    AjouterAuRang(*rang, part, &part == parts.data());
    etire = etire || (part.Part > 0 && Widget(part.Champ)->maximumWidth() == QWIDGETSIZE_MAX);
  }
  if (!etire) rang->addStretch(1);
  return rang;
}

/// A field with what is said before and behind it never comes apart.
QLayout* LiaisonChamps::RangPliant(const std::vector<TPart>& parts) {
  auto* rang = new RangeePliante;
  for (const TPart& part : parts) {
    auto* groupe = new QHBoxLayout;
    groupe->setSpacing(Theme::Px(8));
    AjouterAuRang(*groupe, part, &part == parts.data());
    rang->AjouterGroupe(groupe);
  }
  return rang;
}

QLayout* LiaisonChamps::Rangee(const std::vector<TPart>& parts) {
  TLigneFaute faute{{}, new MarqueEtat};
  for (const TPart& part : parts) faute.Champs.push_back(part.Champ);
  const bool larges = std::ranges::any_of(parts, [](const TPart& part) { return part.Part > 0; });
  auto* colonne = new QVBoxLayout;
  colonne->setSpacing(Theme::Px(4));
  colonne->addLayout(larges || parts.size() == 1 ? RangSimple(parts) : RangPliant(parts));
  colonne->addWidget(faute.Marque);
  faute.Marque->hide();
  fautes_.push_back(std::move(faute));
  return colonne;
}

// Showing

void LiaisonChamps::Actualiser(int champ) {
  if (champ >= 0) ActualiserUn(champ);
  for (int i = 0; champ < 0 && i < champs_.Nombre(); ++i) ActualiserUn(i);
  ActualiserFautes();
}

void LiaisonChamps::ActualiserUn(int champ) {
  const int valeur = champs_.Entier(champ);
  const bool lecture = champs_.LectureSeule(), inactif = lecture || !champs_.Actifs();
  for (const TRadio& radio : radios_) {
    if (radio.Champ != champ) continue;
    radio.Bouton->setChecked(champs_.Actifs() && valeur == radio.Valeur);
    radio.Bouton->setEnabled(!lecture);
  }
  QWidget* widget = widgets_[static_cast<std::size_t>(champ)];
  if (widget == nullptr) return;
  const QString texte = champs_.Texte(champ);
  if (auto* ligne = qobject_cast<QLineEdit*>(widget)) {
    ligne->setReadOnly(inactif);
    if (ligne->text() != texte) {
      ligne->setText(texte);
      if (!ligne->hasFocus()) ligne->setCursorPosition(0);
    }
  } else if (auto* lignes = qobject_cast<QPlainTextEdit*>(widget)) {
    lignes->setReadOnly(inactif);
    if (lignes->toPlainText() != QString(texte).replace(u"\r\n"_s, u"\n"_s)) Remplacer(*lignes, texte);
  } else if (auto* choix = qobject_cast<QComboBox*>(widget)) {
    choix->setEnabled(!lecture);
    choix->setCurrentIndex(champs_.Actifs() ? valeur : -1);
  } else if (auto* coche = qobject_cast<QCheckBox*>(widget)) {
    coche->setEnabled(!lecture);
    coche->setChecked(valeur == 1);
  }
  const QString faute = champs_.Faute(champ);
  MarquerFaute(*widget, !faute.isEmpty());
  if (widget->accessibleDescription() != faute)
    widget->setAccessibleDescription(faute);  // it tells listeners
}

void LiaisonChamps::ActualiserFautes() {
  for (const TLigneFaute& ligne : fautes_) {
    QString texte;
    for (const int champ : ligne.Champs)
      if (texte.isEmpty()) texte = champs_.Faute(champ);
    if (ligne.Marque->Texte() != texte) ligne.Marque->Definir(TNiveauEtat::Erreur, texte);
    ligne.Marque->setVisible(!texte.isEmpty());
  }
}

// Leaving

int LiaisonChamps::ChampDe(const QObject* widget) const {
  const auto trouve = std::ranges::find(widgets_, widget);
  return widget == nullptr || trouve == widgets_.end() ? -1 : static_cast<int>(trouve - widgets_.begin());
}

bool LiaisonChamps::Quitter(int champ) { return champs_.Quitter(champ); }

void LiaisonChamps::AllerA(int champ) {
  QWidget* widget = widgets_[static_cast<std::size_t>(champ)];
  for (const TRadio& radio : radios_)
    if (widget == nullptr && radio.Champ == champ) widget = radio.Bouton;
  if (widget != nullptr && widget->isVisible()) widget->setFocus(Qt::OtherFocusReason);
}

bool LiaisonChamps::eventFilter(QObject* objet, QEvent* evenement) {
  // A field that ends gives the focus away when nothing but a plain widget is left of it.
  if (objet->metaObject() == &QWidget::staticMetaObject) return false;
  const int champ = ChampDe(objet);
  if (champ < 0) return false;
  if (champs_.Champ(champ).Genre == TGenreChamp::TexteMontant && EstPointDuPave(*evenement)) {
    QKeyEvent virgule(QEvent::KeyPress, Qt::Key_Comma, Qt::NoModifier, u","_s);
    QCoreApplication::sendEvent(objet, &virgule);
    return true;
  }
  if (evenement->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(evenement)->key() == Qt::Key_Escape &&
      champs_.RendEnEchappant(champ)) {
    champs_.Abandonner(champ);
    return true;
  }
  if (evenement->type() != QEvent::FocusOut) return false;
  if (retour_ >= 0 && retour_ != champ)
    return false;  // it had the focus only until the refused one gets it back
  const Qt::FocusReason raison = static_cast<QFocusEvent*>(evenement)->reason();
  if (raison == Qt::PopupFocusReason || Quitter(champ) || raison == Qt::ActiveWindowFocusReason) return false;
  // Only once the focus has gone where it goes; by then another record may have taken the fault away.
  retour_ = champ;
  QMetaObject::invokeMethod(
      this,
      [this, champ] {
        if (!champs_.Faute(champ).isEmpty()) AllerA(champ);
        retour_ = -1;
      },
      Qt::QueuedConnection);
  return false;
}

// Forms

QLayout* CreerFormulaire(LiaisonChamps& liaison) {
  const TChamps& champs = liaison.Champs();
  auto* colonnes = new QHBoxLayout;
  colonnes->setSpacing(Theme::Px(32));
  QGridLayout* grille = nullptr;
  int colonne = -1;
  for (int champ = 0; champ < champs.Nombre();) {
    const TChamp& premier = champs.Champ(champ);
    if (premier.Colonne != std::exchange(colonne, premier.Colonne) || grille == nullptr) {
      auto* pile = new QVBoxLayout;
      grille = new QGridLayout;
      grille->setHorizontalSpacing(Theme::Px(8));
      grille->setVerticalSpacing(Theme::Px(8));
      grille->setColumnStretch(1, 1);
      pile->addLayout(grille);
      pile->addStretch(1);
      colonnes->addLayout(pile, 1);
    }
    std::vector<LiaisonChamps::TPart> parts;
    do {
      parts.push_back({champ, Dimensionner(champs.Champ(champ), *liaison.Widget(champ))});
    } while (++champ < champs.Nombre() && champs.Champ(champ).Suite);
    const int rang = grille->rowCount();
    if (premier.Genre != TGenreChamp::Coche && !premier.Libelle.isEmpty())
      grille->addWidget(CreerLibelleDeRang(premier.Libelle, liaison.Widget(parts.front().Champ)), rang, 0,
                        Qt::AlignTop);
    grille->addLayout(liaison.Rangee(parts), rang, 1);
  }
  for (int champ = 0; champ < champs.Nombre(); ++champ)
    liaison.Widget(champ, champs.Champ(champ).Nomme);  // where the label tells less
  return colonnes;
}
