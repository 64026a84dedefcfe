#include "ui/services/arbre_coches.h"

#include <QHeaderView>
#include <QScopedValueRollback>

#include "screens/services/frm_liste_frais.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

enum TColonne { kNom, kEtat };

/// Null for the whole school.
const TNoeud* NoeudDe(const QTreeWidgetItem& ligne) {
  return static_cast<const TNoeud*>(ligne.data(kNom, Qt::UserRole).value<void*>());
}

constexpr Qt::CheckState kCoches[] = {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked};  // of TEtatCoche

}  // namespace

ArbreCoches::ArbreCoches(TFrmListeFrais& form, TProfondeur profondeur, const QString& nom, QWidget* parent)
    : QTreeWidget(parent), form_(form), profondeur_(profondeur) {
  setAccessibleName(nom);
  setHeaderHidden(true);
  setColumnCount(2);
  setUniformRowHeights(true);
  setTabKeyNavigation(false);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(kNom, QHeaderView::Stretch);
  header()->setSectionResizeMode(kEtat, QHeaderView::ResizeToContents);
  QTreeWidgetItem* ecole = nullptr;
  if (profondeur == Classes) {
    ecole = new QTreeWidgetItem(this, {u"Toute l'école"_s});
    ecole->setExpanded(true);
  }
  for (const auto& racine : form.Arbre().Racines()) Ajouter(ecole, *racine);
  if (topLevelItemCount() > 0) setCurrentItem(topLevelItem(0));
  connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* ligne, int colonne) {
    if (!enCours_ && colonne == kNom) form_.Cocher(NoeudDe(*ligne), ligne->checkState(kNom) == Qt::Checked);
  });
  liens_ += form.SurCoches.Suivre([this] { Actualiser(); });
  liens_ += form.SurCommandes.Suivre([this] { Actualiser(); });  // reading or writing
  Actualiser();
}

/// False for a pupil where only classes are shown.
bool ArbreCoches::Ajouter(QTreeWidgetItem* parent, const TNoeud& noeud) {
  const TEleve* eleve = noeud.Objet.En<TEleve>();
  if (eleve != nullptr && profondeur_ == Classes) return false;
  auto* ligne = parent != nullptr ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
  ligne->setText(kNom, noeud.Texte);
  ligne->setData(kNom, Qt::UserRole,
                 QVariant::fromValue(const_cast<void*>(static_cast<const void*>(&noeud))));
  if (noeud.Marque == TMarqueNoeud::Barree) {
    QFont police = font();
    police.setStrikeOut(true);
    ligne->setFont(kNom, police);
  }
  bool classes = false;
  for (const auto& enfant : noeud.Enfants()) classes = Ajouter(ligne, *enfant) || classes;
  ligne->setExpanded(classes && !noeud.Objet.En<TClasse>());  // the classes of a site are seen at once
  return true;
}

void ArbreCoches::Actualiser() {
  const QScopedValueRollback enCours(enCours_, true);
  for (int i = 0; i < topLevelItemCount(); ++i) Montrer(*topLevelItem(i));
}

void ArbreCoches::Montrer(QTreeWidgetItem& ligne) {
  const TNoeud* noeud = NoeudDe(ligne);
  const bool ecrit = form_.Mode() != TModeEdition::Lecture;
  const bool paye = noeud != nullptr && form_.EstPaye(*noeud);
  const bool radie = noeud != nullptr && noeud->Marque == TMarqueNoeud::Barree;
  ligne.setFlags(ecrit ? ligne.flags() | Qt::ItemIsUserCheckable : ligne.flags() & ~Qt::ItemIsUserCheckable);
  ligne.setCheckState(kNom, kCoches[static_cast<std::size_t>(form_.EtatDe(noeud))]);
  ligne.setText(kEtat, paye ? u"payé"_s : radie ? u"radié"_s : QString());
  ligne.setIcon(kEtat, paye ? Theme::Icone(u"dialog-ok-apply"_s, TRole::Succes) : QIcon());
  ligne.setForeground(kEtat, Theme::Couleur(paye ? TRole::Succes : TRole::Secondaire));
  QString nom = ligne.text(kNom);
  if (radie) nom += u", radié"_s;
  if (paye) nom += u", payé"_s;
  ligne.setData(kNom, Qt::AccessibleTextRole, nom);
  for (int i = 0; i < ligne.childCount(); ++i) Montrer(*ligne.child(i));
}
