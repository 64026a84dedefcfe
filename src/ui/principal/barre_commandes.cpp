#include "ui/principal/barre_commandes.h"

#include <QActionGroup>
#include <QMenu>

#include "core/mois.h"
#include "screens/principal/frm_main.h"
#include "ui/commun/acces_bouton.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kHauteurOnglets = 30;
constexpr int kHauteurCommandes = 76;

int LargeurGras(const QString& texte) { return QFontMetrics(Theme::Gras()).horizontalAdvance(texte); }

/// Its text in bold when it is checked, for which there is room from the start.
class BoutonOnglet : public QToolButton {
 public:
  QSize sizeHint() const override {
    const int gras = LargeurGras(text()) - fontMetrics().horizontalAdvance(text());
    return QToolButton::sizeHint() + QSize(isCheckable() ? gras : 0, 0);
  }
};

/// A button of the bar: the Tab key reaches it, a click leaves the focus where the hand is.
QToolButton* CreerOnglet(const QString& texte) {
  auto* bouton = new BoutonOnglet;
  bouton->setText(texte);
  bouton->setProperty("genre", u"onglet"_s);
  bouton->setCheckable(true);
  bouton->setFocusPolicy(Qt::TabFocus);
  return bouton;
}

/// The same; with large text it gives way down to its text.
class BoutonCommande : public QToolButton {
 public:
  BoutonCommande(const QString& texte, const QString& icone, TRole role) {
    setText(QString(texte).remove(u'&'));
    setShortcut(QKeySequence::mnemonic(texte));  // told by the tip
    setProperty("genre", u"commande"_s);
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setIcon(Theme::Icone(icone, role));
    setIconSize({Theme::Px(32), Theme::Px(32)});
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QToolButton::toggled, this, &QWidget::updateGeometry);
  }
  QSize sizeHint() const override {
    return {qMax(Theme::Px(93), LargeurGras(text()) + Theme::Px(36)), Theme::Px(64)};
  }
  QSize minimumSizeHint() const override {
    const int texte = isChecked() ? LargeurGras(text()) : fontMetrics().horizontalAdvance(text());
    return {texte + Theme::Px(14), Theme::Px(64)};
  }
};

QString ToucheAlt(const QString& libelle) {
  const auto place = libelle.indexOf(u'&');
  return place < 0 ? QString() : QString(u" (Alt+" % libelle.at(place + 1).toUpper() % u')');
}

}  // namespace

BarreCommandes::BarreCommandes(TFrmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  InstallerAccesBoutons();
  setAccessibleName(u"Barre de commandes"_s);
  auto* onglets = new QHBoxLayout;
  onglets->setContentsMargins(Theme::Px(8), 0, Theme::Px(16), 0);
  onglets->setSpacing(0);
  CreerOnglets(*onglets);
  auto* commandes = new QHBoxLayout;
  commandes->setContentsMargins(Theme::Px(8), Theme::Px(6), Theme::Px(8), Theme::Px(6));
  commandes->setSpacing(Theme::Px(6));
  CreerCommandes(*commandes);
  CreerOutils(*commandes);
  commandes->addStretch();
  auto* colonne = new QVBoxLayout(this);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(0);
  colonne->addLayout(onglets);
  colonne->addLayout(commandes, 1);
  setFixedHeight(Theme::Px(kHauteurOnglets + kHauteurCommandes));
  Actualiser();
}

void BarreCommandes::CreerOnglets(QHBoxLayout& ligne) {
  for (const TPagePrincipale& page : PagesPrincipales()) {
    QToolButton* onglet = CreerOnglet(page.Titre);
    onglet->setFixedHeight(Theme::Px(kHauteurOnglets));
    connect(onglet, &QToolButton::clicked, this, [this, page] {
      form_.PageClick(page.Page);
      Actualiser();
    });
    ligne.addWidget(onglet);
    onglets_[page.Page] = onglet;
  }
  ligne.addStretch();
  annees_ = CreerOnglet({});
  annees_->setObjectName(u"annees"_s);  // no page: its text is never pale
  annees_->setCheckable(false);
  annees_->setProperty("ouvreMenu", true);  // made at each opening, since years come and go
  annees_->setFixedHeight(Theme::Px(kHauteurOnglets));
  annees_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  annees_->setIcon(Theme::Icone(u"view-calendar"_s));
  annees_->setIconSize({Theme::Px(16), Theme::Px(16)});
  annees_->setToolTip(u"Année affichée (Ctrl+0)"_s);
  connect(annees_, &QToolButton::clicked, this, &BarreCommandes::OuvrirMenuAnnees);
  ligne.addWidget(annees_);
  CreerAide(ligne);
}

void BarreCommandes::CreerAide(QHBoxLayout& ligne) {
  aide_ = CreerOnglet(u"?"_s);
  aide_->setCheckable(false);
  aide_->setFixedHeight(Theme::Px(kHauteurOnglets));
  aide_->setAccessibleName(u"Aide"_s);
  aide_->setToolTip(u"Guide (F1), touches (Maj+F1), version"_s);
  aide_->setPopupMode(QToolButton::InstantPopup);
  auto* menu = new QMenu(aide_);
  menu->addAction(u"&Guide\tF1"_s, this, &BarreCommandes::GuideDemande);
  menu->addAction(u"&Touches\tMaj+F1"_s, this, &BarreCommandes::TouchesDemandees);
  menu->addAction(u"À &propos"_s, this, &BarreCommandes::AProposDemande);
  aide_->setMenu(menu);
  ligne.addWidget(aide_);
}

void BarreCommandes::CreerCommandes(QHBoxLayout& ligne) {
  for (const TCommandePrincipale& commande : form_.Commandes) {
    auto* bouton = new BoutonCommande(commande.Libelle, commande.Icone, TRole::Accent);
    bouton->setCheckable(true);
    connect(bouton, &QToolButton::clicked, this, [this, quoi = commande.Gestionnaire] {
      Actualiser();  // it is the screen that is open, and not the click, that checks a command
      form_.Executer(quoi);
    });
    ligne.addWidget(bouton);
    commandes_[commande.Gestionnaire] = bouton;
  }
}

void BarreCommandes::CreerOutils(QHBoxLayout& ligne) {
  separateur_ = new QWidget;  // drawn by paintEvent
  separateur_->setFixedWidth(Theme::Px(16));
  ligne.addWidget(separateur_);
  for (const TOutilPrincipal& outil : OutilsPrincipaux()) {
    const TRole role = outil.Outil == TOutil::btnDelete ? TRole::Erreur : TRole::Texte;
    auto* bouton = new BoutonCommande(outil.Libelle, outil.Icone, role);
    connect(bouton, &QToolButton::clicked, this, [this, quoi = outil.Outil] { form_.OutilClick(quoi); });
    ligne.addWidget(bouton);
    outils_[outil.Outil] = bouton;
  }
}

void BarreCommandes::Actualiser() {
  for (const auto& [page, onglet] : onglets_) onglet->setVisible(form_.PageVisible(page));
  int rang = 0;
  for (const TPagePrincipale& page : form_.Pages()) {
    QToolButton* onglet = onglets_.at(page.Page);
    onglet->setToolTip(page.Titre % u" (Ctrl+" % QString::number(++rang) % u')');
    onglet->setText(page.Titre);
    onglet->setChecked(page.Page == form_.PageActive());
    onglet->setEnabled(!form_.EnTravail());
  }
  const TCommandePrincipale* ouverte = form_.CommandeOuverte();
  for (const TCommandePrincipale& commande : form_.Commandes) {
    QToolButton* bouton = commandes_.at(commande.Gestionnaire);
    bouton->setVisible(form_.CommandeVisible(commande));
    if (bouton->isHidden()) continue;  // comes back here when its page is opened
    const QString raison = form_.RaisonInactive(commande);
    bouton->setChecked(&commande == ouverte);
    bouton->setEnabled(raison.isEmpty());
    bouton->setToolTip(commande.Nom() %
                       (raison.isEmpty() ? ToucheAlt(commande.Libelle) : QString(u" : " % raison)));
  }
  ActualiserOutils();
  annees_->setVisible(!form_.IntituleAnnee().isEmpty() || form_.PeutChoisirAnnee());
  const QString intitule =
      form_.IntituleAnnee().isEmpty() ? u"Choisir une année scolaire"_s : form_.IntituleAnnee();
  annees_->setText(intitule % u"  ▾");
  annees_->setAccessibleName(intitule);
  annees_->setEnabled(form_.PeutChoisirAnnee() && !form_.EnTravail());
  update();
}

void BarreCommandes::ActualiserOutils() {
  bool unOutil = false;
  for (const TOutilPrincipal& outil : OutilsPrincipaux()) {
    QToolButton* bouton = outils_.at(outil.Outil);
    const bool visible = form_.OutilVisible(outil.Outil), actif = form_.OutilActif(outil.Outil);
    unOutil = unOutil || visible;
    bouton->setVisible(visible);
    bouton->setEnabled(actif);
    bouton->setToolTip(outil.Libelle % (actif                     ? QString(u" (" % outil.Touche % u')')
                                        : !outil.Raison.isEmpty() ? QString(u" : " % outil.Raison)
                                        : form_.EnTravail()       ? u" : un travail est en cours"_s
                                                                  : u" : pas maintenant"_s));
  }
  separateur_->setVisible(unOutil);
}

void BarreCommandes::OuvrirMenuAnnees() {
  if (!annees_->isEnabled() || !annees_->isVisible()) return;
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* groupe = new QActionGroup(menu);
  for (const int annee : form_.Annees()) {
    QAction* choix = menu->addAction(AnneeEnTexte(annee));
    choix->setCheckable(true);
    choix->setActionGroup(groupe);
    choix->setChecked(annee == form_.AnneeCochee());
    if (choix->isChecked()) menu->setActiveAction(choix);
    connect(choix, &QAction::triggered, this, [this, annee] { form_.mnuAnneeClick(annee); });
  }
  menu->addSeparator();
  menu->addAction(u"Relire les données\tF5"_s, this, [this] { form_.RechargerAnnee(); })
      ->setEnabled(form_.EstRelie());
  const QSize taille = menu->sizeHint();
  menu->popup(annees_->mapToGlobal(QPoint(annees_->width() - taille.width(), annees_->height())));
}

void BarreCommandes::ActiverPage(int rang) {
  const auto pages = form_.Pages();
  if (form_.EnTravail() || rang < 0 || rang >= static_cast<int>(pages.size())) return;
  form_.PageClick(pages[static_cast<std::size_t>(rang)].Page);
}

void BarreCommandes::paintEvent(QPaintEvent*) {
  QPainter peintre(this);
  peintre.setPen(Theme::Couleur(TRole::Ligne));
  const int onglets = Theme::Px(kHauteurOnglets);
  peintre.drawLine(0, onglets, width(), onglets);
  peintre.drawLine(0, height() - 1, width(), height() - 1);
  if (separateur_->isVisible()) {
    const int x = separateur_->geometry().center().x();
    peintre.drawLine(x, onglets + Theme::Px(6), x, height() - Theme::Px(6));
  }
}
