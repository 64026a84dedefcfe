#include "ui/commun/acces_bouton.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QRadioButton>

namespace {

/// Qt toggles a button that can be checked, and nobody hears of it: screens follow clicks.
class AccesBouton : public QAccessibleWidget {
 public:
  AccesBouton(QAbstractButton* bouton, QAccessible::Role role) : QAccessibleWidget(bouton, role) {}

  QString text(QAccessible::Text quoi) const override {
    const QString texte = QAccessibleWidget::text(quoi);
    return quoi == QAccessible::Name && texte.isEmpty() ? Bouton()->text().remove(u'&') : texte;
  }
  QAccessible::State state() const override {
    QAccessible::State etat = QAccessibleWidget::state();
    const bool onglet = role() == QAccessible::PageTab;
    etat.selectable = onglet;
    etat.selected = onglet && Bouton()->isChecked();
    etat.checkable = !onglet && Bouton()->isCheckable();
    etat.checked = !onglet && Bouton()->isChecked();
    etat.checkStateMixed = EnPartie();
    etat.pressed = Bouton()->isDown();
    return etat;
  }
  QStringList actionNames() const override {
    const QStringList siens = Bouton()->isEnabled() ? QStringList{Geste()} : QStringList();
    return siens + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action == Geste() || action == pressAction())
      Bouton()->click();
    else
      QAccessibleWidget::doAction(action);
  }
  QStringList keyBindingsForAction(const QString& action) const override {
    if (action != Geste()) return QAccessibleWidget::keyBindingsForAction(action);
    return {Bouton()->shortcut().toString()};
  }

 private:
  /// What it is called to an assistive program.
  const QString& Geste() const {
    const bool coche = role() == QAccessible::CheckBox || role() == QAccessible::RadioButton;
    return coche ? toggleAction() : pressAction();
  }
  bool EnPartie() const {
    const auto* boite = qobject_cast<const QCheckBox*>(object());
    return boite != nullptr && boite->checkState() == Qt::PartiallyChecked;
  }
  QAbstractButton* Bouton() const { return static_cast<QAbstractButton*>(object()); }
};

QAccessibleInterface* Creer(const QString&, QObject* objet) {
  auto* bouton = qobject_cast<QAbstractButton*>(objet);
  if (bouton == nullptr) return nullptr;
  const QString genre = bouton->property("genre").toString();
  if (genre == u"onglet" && bouton->isCheckable()) return new AccesBouton(bouton, QAccessible::PageTab);
  if (genre == u"onglet" || genre == u"commande") return new AccesBouton(bouton, QAccessible::Button);
  if (qobject_cast<QCheckBox*>(bouton) != nullptr) return new AccesBouton(bouton, QAccessible::CheckBox);
  if (qobject_cast<QRadioButton*>(bouton) != nullptr)
    return new AccesBouton(bouton, QAccessible::RadioButton);
  return bouton->isCheckable() ? new AccesBouton(bouton, QAccessible::Button) : nullptr;
}

}  // namespace

void InstallerAccesBoutons() { QAccessible::installFactory(Creer); }
