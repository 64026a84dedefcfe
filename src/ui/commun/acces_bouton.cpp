#include "ui/commun/acces_bouton.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// Qt toggles a button that can be checked, and nobody hears of it: screens follow clicks. An assistive
/// program may ask for a button while it is being made: what it is, is seen at each question.
class AccesBouton : public QAccessibleWidget {
 public:
  explicit AccesBouton(QAbstractButton* bouton) : QAccessibleWidget(bouton, QAccessible::Button) {}

  QAccessible::Role role() const override {
    if (qobject_cast<QCheckBox*>(object()) != nullptr) return QAccessible::CheckBox;
    if (qobject_cast<QRadioButton*>(object()) != nullptr) return QAccessible::RadioButton;
    const bool onglet = object()->property("genre") == u"onglet"_s && Bouton()->isCheckable();
    return onglet ? QAccessible::PageTab : QAccessible::Button;
  }
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
    if (const auto* bouton = qobject_cast<const QPushButton*>(object())) {
      etat.defaultButton = bouton->isDefault();
      etat.hasPopup = bouton->menu() != nullptr;
    } else if (const auto* outil = qobject_cast<const QToolButton*>(object())) {
      etat.hasPopup = outil->menu() != nullptr || outil->property("ouvreMenu").toBool();
    }
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
  return bouton != nullptr ? new AccesBouton(bouton) : nullptr;
}

}  // namespace

void InstallerAccesBoutons() { QAccessible::installFactory(Creer); }
