#pragma once
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>

#include "support/grilles.h"
#include "ui/commun/vue_grille.h"
#include "ui/principal/barre_etat.h"
#include "ui/programme_essai.h"
#include "ui/verifier_vue.h"

/// The whole program on a small school, used through the fields of its screens, which are found by the names
/// of their controls.
class TReglagesEssai : public testing::Test {
 protected:
  void Demarrer(TGestionnaire ecran) {
    Programme.Demarrer();
    Programme.Ouvrir(ecran);
  }
  /// The control, on the page of its tab.
  template <class T = QWidget>
  T& Controle(const QString& nom) {
    T* controle = Programme.Fenetre().findChild<T*>(nom);
    if (controle == nullptr) throw std::runtime_error("no " + nom.toStdString());
    for (QWidget* w = controle; w != nullptr; w = w->parentWidget())
      if (auto* pages = qobject_cast<QTabWidget*>(w))
        for (int i = 0; i < pages->count(); ++i)
          if (pages->widget(i)->isAncestorOf(controle)) pages->setCurrentIndex(i);
    return *controle;
  }
  /// The visible control of that accessible name.
  template <class T>
  T& Nomme(const QString& nom) {
    for (T* controle : Programme.Fenetre().findChildren<T*>())
      if (controle->accessibleName() == nom && controle->isVisible()) return *controle;
    throw std::runtime_error("no " + nom.toStdString());
  }
  /// After a dialog: no window manager does it.
  void Activer() {
    QApplication::setActiveWindow(&Programme.Fenetre());
    QCoreApplication::processEvents();
  }
  void Aller(QWidget& controle) {
    Activer();
    controle.setFocus();
    EXPECT_TRUE(controle.hasFocus()) << controle.objectName().toStdString();
  }
  /// Typed in the place of what was there; the hand stays in the field.
  void Taper(const QString& nom, const QString& texte) {
    auto& champ = Controle(nom);
    Aller(champ);
    QTest::keyClick(&champ, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&champ, Qt::Key_Delete);
    QTest::keyClicks(&champ, texte);
  }
  /// Tab leaves the field.
  void Saisir(const QString& nom, const QString& texte) {
    Taper(nom, texte);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCoreApplication::processEvents();
  }
  void Cocher(const QString& nom) {
    auto& boite = Controle(nom);
    Aller(boite);
    QTest::keyClick(&boite, Qt::Key_Space);
  }
  /// So many steps down the list.
  void Choisir(const QString& nom, int indice) {
    auto& liste = Controle<QComboBox>(nom);
    Aller(liste);
    QTest::keyClick(&liste, Qt::Key_Home);
    for (int i = 0; i < indice; ++i) QTest::keyClick(&liste, Qt::Key_Down);
    EXPECT_EQ(liste.currentIndex(), indice);
  }
  void Touche(Qt::Key touche, Qt::KeyboardModifiers avec = {}) { Programme.Presser({touche | avec}); }
  void Cliquer(const QString& bouton) { ::Cliquer(Programme.Fenetre(), bouton); }
  bool Dit(const QString& texte) { return TextesDe(Programme.Fenetre()).contains(texte); }
  QString Etat() { return Programme.Fenetre().Etat()->Texte(); }
  QString Parametre(int id) {
    return Base.Valeur(u"SELECT TRIM(VALEUR) FROM PARAMETRE WHERE PARAMETRE_ID = "_s + QString::number(id));
  }
  template <class T>
  T& Form() {
    return dynamic_cast<T&>(*Programme.Main().Panneau.Courante());
  }

  TProgrammeEssai Programme;
  TBaseEssai& Base = Programme.Base;
  TEcoleEssai Ecole{Base};
};
