#include "ui/commun/acces_bouton.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace {

/// Qt tells of a button that can be checked that it is to be toggled, which opens no screen.
class AccesBouton : public QAccessibleWidget {
 public:
  AccesBouton(QAbstractButton* bouton, QAccessible::Role role) : QAccessibleWidget(bouton, role) {}

  QString text(QAccessible::Text quoi) const override {
    const QString texte = QAccessibleWidget::text(quoi);
    return quoi == QAccessible::Name && texte.isEmpty() ? Bouton()->text().remove(u'&') : texte;
  }
  QAccessible::State state() const override {
    QAccessible::State etat = QAccessibleWidget::state();
    etat.selectable = role() == QAccessible::PageTab;
    etat.selected = role() == QAccessible::PageTab && Bouton()->isChecked();
    etat.checked = role() != QAccessible::PageTab && Bouton()->isChecked();
    return etat;
  }
  QStringList actionNames() const override {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action == pressAction())
      Bouton()->click();
    else
      QAccessibleWidget::doAction(action);
  }
  QStringList keyBindingsForAction(const QString& action) const override {
    if (action != pressAction()) return QAccessibleWidget::keyBindingsForAction(action);
    return {Bouton()->shortcut().toString()};
  }

 private:
  QAbstractButton* Bouton() const { return static_cast<QAbstractButton*>(object()); }
};

QAccessibleInterface* Creer(const QString&, QObject* objet) {
  auto* bouton = qobject_cast<QAbstractButton*>(objet);
  if (bouton == nullptr) return nullptr;
  const QString genre = bouton->property("genre").toString();
  if (genre == u"onglet" && bouton->isCheckable()) return new AccesBouton(bouton, QAccessible::PageTab);
  if (genre == u"onglet" || genre == u"commande") return new AccesBouton(bouton, QAccessible::Button);
  return nullptr;
}

}  // namespace

void InstallerAccesBoutons() { QAccessible::installFactory(Creer); }
