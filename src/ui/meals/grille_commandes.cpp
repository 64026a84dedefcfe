#include "ui/meals/grille_commandes.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "screens/meals/frm_reservation.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

/// A letter of its title that no column before it has.
QChar Lettre(const QString& titre, const QString& prises) {
  for (const QChar c : titre)
    if (c.isLetter() && !prises.contains(c, Qt::CaseInsensitive)) return c.toUpper();
  return {};
}

}  // namespace

GrilleCommandes::GrilleCommandes(TFrmReservation& form, QWidget* parent) : QTableWidget(parent), form_(form) {
  setAccessibleName(u"Commandes de la classe"_s);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  verticalHeader()->hide();
  const TGrille& grille = form.Grille;
  setColumnCount(grille.NombreColonnes());
  QStringList titres;
  for (int c = 0; c < grille.NombreColonnes(); ++c) {
    titres += grille.Colonne(c).Titre;
    if (c > 0) lettres_ += Lettre(grille.Colonne(c).Titre, lettres_);
  }
  setHorizontalHeaderLabels(titres);
  horizontalHeaderItem(0)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  for (int c = 1; c < columnCount(); ++c)
    horizontalHeaderItem(c)->setToolTip(u"Touche %1"_s.arg(lettres_[c - 1]));
  horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  verticalHeader()->setDefaultSectionSize(Theme::Px(30));
  connect(this, &QTableWidget::cellClicked, this, &GrilleCommandes::Cliquer);
  connect(this, &QTableWidget::currentCellChanged, this, &GrilleCommandes::Changer);
  liens_ += form.Grille.SurChangement.Suivre([this](TGrille::TChangement changement) {
    changement.Ligne < 0 ? Remplir() : Ecrire(changement.Ligne);
  });
  Remplir();
}

QString GrilleCommandes::Aide() const {
  QStringList touches{u"Espace ou une lettre coche la cellule"_s};
  for (int c = 1; c < columnCount(); ++c)
    touches += QString(lettres_[c - 1]) % u" : " % form_.Grille.Colonne(c).Titre;
  return touches.join(u"  ·  ");
}

void GrilleCommandes::Remplir() {
  const QSignalBlocker silence(this);
  setRowCount(form_.Grille.NombreLignes());
  for (int ligne = 0; ligne < rowCount(); ++ligne) Ecrire(ligne);
}

/// Who has left is crossed out, and an order that cannot be made is marked whichever row is in hand.
void GrilleCommandes::EcrireNom(QTableWidgetItem& cellule, const TLigneGrille& ligne) const {
  QFont police = font();
  police.setStrikeOut(ligne.Barree);
  cellule.setFont(police);
  const TEtatGrille& etat = form_.Grille.Etats.at(static_cast<std::size_t>(ligne.Etat));
  const bool marque = !etat.Texte.isEmpty();
  cellule.setIcon(marque ? Theme::Icone(etat.Icone, RoleDeEtat(etat)) : QIcon());
  if (marque) cellule.setText(cellule.text() % u"  ·  " % etat.Texte);
}

void GrilleCommandes::Ecrire(int ligne) {
  const QSignalBlocker silence(this);
  for (int c = 0; c < columnCount(); ++c) {
    QTableWidgetItem* cellule = item(ligne, c);
    if (cellule == nullptr) setItem(ligne, c, cellule = new QTableWidgetItem);
    const QString texte = form_.Grille.Texte(ligne, c);
    cellule->setText(texte);
    if (c == 0) {
      EcrireNom(*cellule, form_.Grille.Ligne(ligne));
      continue;
    }
    cellule->setTextAlignment(Qt::AlignCenter);
    cellule->setBackground(texte.isEmpty() ? QBrush() : QBrush(Theme::Couleur(TRole::Selection)));
    cellule->setData(Qt::AccessibleTextRole,
                     QString(form_.Grille.Colonne(c).Titre % (texte.isEmpty() ? u" : non" : u" : oui")));
  }
}

// The form moves first: where it refuses, the hand stays.
void GrilleCommandes::Changer(int ligne, int, int ligneAvant, int colonneAvant) {
  if (enCours_ || ligne == ligneAvant || ligne < 0) return;
  if (form_.grdEleveRowChanging(ligne)) return;
  enCours_ = true;
  setCurrentCell(ligneAvant, colonneAvant);
  enCours_ = false;
  // Whatever moved there selects it afterwards.
  QMetaObject::invokeMethod(
      this, [this] { selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect); },
      Qt::QueuedConnection);
}

// A click on another row has already moved there, or been refused.
void GrilleCommandes::Cliquer(int ligne, int colonne) {
  if (ligne == currentRow()) form_.grdEleveClickCell(ligne, colonne);
}

int GrilleCommandes::ColonneDe(const QString& lettre) const {
  return lettre.size() == 1 ? static_cast<int>(lettres_.indexOf(lettre[0], 0, Qt::CaseInsensitive)) + 1 : 0;
}

void GrilleCommandes::keyPressEvent(QKeyEvent* evenement) {
  const bool simple = (evenement->modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
  const int colonne = evenement->key() == Qt::Key_Space ? currentColumn() : ColonneDe(evenement->text());
  if (!simple || colonne <= 0 || currentRow() < 0) {
    QTableWidget::keyPressEvent(evenement);
    return;
  }
  form_.grdEleveClickCell(currentRow(), colonne);
}
