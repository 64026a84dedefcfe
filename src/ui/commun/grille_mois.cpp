#include "ui/commun/grille_mois.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "core/mois.h"
#include "ui/commun/etiquette.h"
#include "ui/commun/texte.h"

using namespace Qt::StringLiterals;

namespace {

/// Column 0 is the master.
int MoisDe(int colonne) { return kMoisScolaires[static_cast<size_t>(colonne) - 1]; }
QString Tete(int colonne) { return colonne == 0 ? u"tous"_s : NomMoisCourt(MoisDe(colonne)); }
QString NomDe(int colonne) { return colonne == 0 ? u"tous les mois"_s : NomMoisCourant(MoisDe(colonne)); }

/// A box whose whole cell takes the click.
class CaseMois : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;
  QSize sizeHint() const override { return {Theme::Px(28), Theme::Px(22)}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void nextCheckState() override { setCheckState(checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked); }
};

}  // namespace

GrilleMois::GrilleMois(const QStringList& lignes, QWidget* parent) : QWidget(parent) {
  auto* grille = new QGridLayout(this);
  grille->setContentsMargins(0, 0, 0, 0);
  grille->setSpacing(0);
  grille->setColumnStretch(0, 1);
  for (int colonne = 0; colonne <= kMois; ++colonne) {
    auto* tete = new Etiquette(Tete(colonne), TRole::Secondaire, &Theme::TeteMois);
    tete->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    tete->setContentsMargins(1, 0, 1, 0);
    // Behind the master stands the line that sets it apart.
    grille->addWidget(tete, 0, colonne == 0 ? 1 : colonne + 2);
    if (colonne == 1) premiereTete_ = tete;
  }
  grille->setColumnMinimumWidth(2, Theme::Px(8));
  for (const QString& texte : lignes) {
    const int ligne = static_cast<int>(lignes_.size());
    TLigneMois& nouvelle = lignes_.emplace_back();
    auto* libelle = new Etiquette(texte);
    libelle->setWordWrap(true);  // two lines rather than a wider record
    nouvelle.Libelle = libelle;
    nouvelle.Libelle->setContentsMargins(0, 0, Theme::Px(8), 0);
    grille->addWidget(nouvelle.Libelle, ligne + 1, 0);
    for (int colonne = 0; colonne <= kMois; ++colonne) {
      const QString nom = NomAccessible(texte) % u", "_s % NomDe(colonne);
      QCheckBox* boite = CreerCase(ligne, colonne, nom);
      nouvelle.Cases[static_cast<size_t>(colonne)] = boite;
      grille->addWidget(boite, ligne + 1, colonne == 0 ? 1 : colonne + 2, Qt::AlignHCenter);
    }
  }
  if (!lignes_.empty()) Choisir(lignes_.front().Cases[1]);
}

QCheckBox* GrilleMois::CreerCase(int ligne, int colonne, const QString& nom) {
  auto* boite = new CaseMois(this);
  boite->setAccessibleName(nom);
  boite->setToolTip(nom);
  boite->setFocusPolicy(Qt::ClickFocus);
  boite->installEventFilter(this);
  connect(boite, &QCheckBox::clicked, this, [this, ligne, colonne] {
    TLigneMois& mienne = lignes_[static_cast<size_t>(ligne)];
    const bool coche = mienne.Cases[static_cast<size_t>(colonne)]->isChecked();
    if (colonne > 0) {
      MettreMaitreAJour(ligne);
      emit Basculee(ligne, colonne - 1, coche);
      return;
    }
    for (QCheckBox* autre : mienne.Cases) autre->setChecked(coche);
    MettreMaitreAJour(ligne);
    emit TousBascules(ligne, coche);
  });
  return boite;
}

void GrilleMois::Definir(int ligne, int mois, bool coche) {
  lignes_.at(static_cast<size_t>(ligne)).Cases.at(static_cast<size_t>(mois) + 1)->setChecked(coche);
  MettreMaitreAJour(ligne);
}

bool GrilleMois::Coche(int ligne, int mois) const {
  return lignes_.at(static_cast<size_t>(ligne)).Cases.at(static_cast<size_t>(mois) + 1)->isChecked();
}

void GrilleMois::MontrerLigne(int ligne, bool visible) {
  TLigneMois& mienne = lignes_.at(static_cast<size_t>(ligne));
  mienne.Libelle->setVisible(visible);
  for (QCheckBox* boite : mienne.Cases) boite->setVisible(visible);
}

void GrilleMois::MettreMaitreAJour(int ligne) {
  const auto& cases = lignes_[static_cast<size_t>(ligne)].Cases;
  const auto coches = std::count_if(cases.begin() + 1, cases.end(), [](auto* c) { return c->isChecked(); });
  cases[0]->setCheckState(coches == 0 ? Qt::Unchecked : coches == kMois ? Qt::Checked : Qt::PartiallyChecked);
}

/// The one box that Tab reaches is the last that had the focus.
void GrilleMois::Choisir(QCheckBox* choisie) {
  for (TLigneMois& ligne : lignes_)
    for (QCheckBox* boite : ligne.Cases)
      boite->setFocusPolicy(boite == choisie ? Qt::StrongFocus : Qt::ClickFocus);
}

void GrilleMois::Aller(int ligne, int colonne) {
  if (ligne < 0 || ligne >= static_cast<int>(lignes_.size()) || colonne < 0 || colonne > kMois) return;
  QCheckBox* boite = lignes_[static_cast<size_t>(ligne)].Cases[static_cast<size_t>(colonne)];
  if (boite->isHidden()) return;
  Choisir(boite);
  boite->setFocus(Qt::OtherFocusReason);
}

bool GrilleMois::Deplacer(int ligne, int colonne, int touche) {
  switch (touche) {
    case Qt::Key_Left:
      Aller(ligne, colonne - 1);
      return true;
    case Qt::Key_Right:
      Aller(ligne, colonne + 1);
      return true;
    case Qt::Key_Up:
      Aller(ligne - 1, colonne);
      return true;
    case Qt::Key_Down:
      Aller(ligne + 1, colonne);
      return true;
    case Qt::Key_Home:
      Aller(ligne, 0);
      return true;
    case Qt::Key_End:
      Aller(ligne, kMois);
      return true;
    default:
      return false;
  }
}

bool GrilleMois::eventFilter(QObject* objet, QEvent* evenement) {
  if (evenement->type() != QEvent::KeyPress && evenement->type() != QEvent::FocusIn) return false;
  for (int ligne = 0; ligne < static_cast<int>(lignes_.size()); ++ligne)
    for (int colonne = 0; colonne <= kMois; ++colonne) {
      QCheckBox* boite = lignes_[static_cast<size_t>(ligne)].Cases[static_cast<size_t>(colonne)];
      if (boite != objet) continue;
      if (evenement->type() == QEvent::KeyPress)
        return Deplacer(ligne, colonne, static_cast<QKeyEvent*>(evenement)->key());
      Choisir(boite);
      return false;
    }
  return false;
}

void GrilleMois::paintEvent(QPaintEvent*) {
  if (!premiereTete_) return;
  QPainter peintre(this);
  peintre.setPen(Theme::Couleur(TRole::Ligne));
  const int x = premiereTete_->x() - Theme::Px(5);
  peintre.drawLine(x, 0, x, height());
}
