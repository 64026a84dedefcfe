#include "ui/programme_essai.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "screens/documents/frm_apercu.h"
#include "ui/commun/dialogue_base.h"
#include "ui/documents/vue_apercu.h"
#include "ui/principal/application.h"
#include "ui/principal/barre_commandes.h"

namespace {

constexpr int kRegardMs = 5;

/// The dialog that is being answered: it may wait for something.
QWidget* enMain = nullptr;

QString Nu(QString texte) { return texte.remove(u'&'); }

}  // namespace

QString TextesDe(const QWidget& fenetre) {
  QStringList textes{fenetre.windowTitle()};
  for (const QLabel* texte : fenetre.findChildren<QLabel*>())
    if (!texte->isHidden()) textes += texte->text();
  return textes.join(u'\n');
}

QAbstractButton* BoutonDe(const QWidget& fenetre, const QString& texte) {
  for (QAbstractButton* bouton : fenetre.findChildren<QAbstractButton*>())
    if (bouton->isVisible() && Nu(bouton->text()) == texte) return bouton;
  return nullptr;
}

void Cliquer(const QWidget& fenetre, const QString& texte) {
  QAbstractButton* bouton = BoutonDe(fenetre, texte);
  ASSERT_NE(bouton, nullptr) << texte.toStdString() << " in " << TextesDe(fenetre).toStdString();
  ASSERT_TRUE(bouton->isEnabled()) << texte.toStdString();
  QTest::mouseClick(bouton, Qt::LeftButton);
}

QStringList ColonneVue(const QTreeView& liste, int colonne) {
  QStringList textes;
  for (QModelIndex i = liste.model()->index(0, 0); i.isValid(); i = liste.indexBelow(i))
    textes += i.siblingAtColumn(colonne).data().toString();
  return textes;
}

TRepondeur::TRepondeur() { Revenir(); }

TRepondeur::~TRepondeur() {
  for (const TAttendu& attendu : attendus_) ADD_FAILURE() << "never came: " << attendu.extrait.toStdString();
}

TRepondeur& TRepondeur::Fait(const QString& extrait, std::function<void(QWidget&)> action) {
  attendus_.push_back({extrait, std::move(action)});
  return *this;
}

TRepondeur& TRepondeur::Clique(const QString& extrait, const QString& bouton) {
  return Fait(extrait, [bouton](QWidget& fenetre) { Cliquer(fenetre, bouton); });
}

TRepondeur& TRepondeur::Saisit(const QString& extrait, const QString& texte) {
  return Fait(extrait, [texte](QWidget& fenetre) {
    auto* champ = fenetre.findChild<QLineEdit*>();
    ASSERT_NE(champ, nullptr);
    champ->selectAll();
    QTest::keyClick(champ, Qt::Key_Delete);
    QTest::keyClicks(champ, texte);
    QTest::mouseClick(dynamic_cast<DialogueBase&>(fenetre).Principal(), Qt::LeftButton);
  });
}

TRepondeur& TRepondeur::Fichier(const QString& titre, const QString& chemin) {
  return Fait(titre, [chemin](QWidget& dialogue) {
    dialogue.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(chemin);
    auto* boutons = dialogue.findChild<QDialogButtonBox*>();
    QPushButton* ouvrir = boutons->button(QDialogButtonBox::Open);
    QTest::mouseClick(ouvrir != nullptr ? ouvrir : boutons->button(QDialogButtonBox::Save), Qt::LeftButton);
  });
}

TRepondeur& TRepondeur::Ferme(const QString& extrait) {
  return Fait(extrait, [](QWidget& dialogue) { dialogue.close(); });
}

TRepondeur& TRepondeur::Apercu(const QString& titre, std::function<void(const QString&)> lire) {
  return Fait(titre, [lire = std::move(lire)](QWidget& fenetre) {
    QTRY_VERIFY(TextesDe(fenetre).contains(u"1 page prête\n"_s));
    lire(dynamic_cast<VueApercu&>(fenetre).Form().Document().TexteDePage(0));
    Cliquer(fenetre, u"Fermer"_s);
  });
}

// A timer of its own each time: one that runs does not fire again, and an answer may open a dialog.
void TRepondeur::Revenir() { QTimer::singleShot(kRegardMs, this, &TRepondeur::Regarder); }

void TRepondeur::Regarder() {
  Revenir();
  QWidget* fenetre = QApplication::activeModalWidget();
  if (fenetre == nullptr || !fenetre->isVisible() || fenetre == enMain) return;
  const QString textes = TextesDe(*fenetre);
  Vus += textes;
  if (attendus_.empty() || !textes.contains(attendus_.front().extrait)) {
    ADD_FAILURE() << "unexpected dialog: " << textes.toStdString();
    fenetre->close();
    return;
  }
  const TAttendu attendu = attendus_.front();
  attendus_.pop_front();
  QWidget* avant = std::exchange(enMain, fenetre);
  attendu.action(*fenetre);
  enMain = avant;
}

TProgrammeEssai::TProgrammeEssai() {
  Base.Reglages.Ecrire(TRacine::Machine, u"Serveur"_s, Base.FichierDeDonnees());
}

TProgrammeEssai::~TProgrammeEssai() {
  Fermer();
  Globals = {};
}

void TProgrammeEssai::Demarrer() {
  programme_ = std::make_unique<Programme>(Horloge);
  qobject_cast<Application*>(qApp)->Dialogues = &programme_->Dialogues;
  Fenetre().Demarrer();
  QCoreApplication::processEvents();
  if (!Fenetre().isVisible()) return;
  Fenetre().activateWindow();  // without a window manager nobody does it after a dialog
  QCoreApplication::processEvents();
  EXPECT_EQ(QApplication::activeWindow(), &Fenetre());
}

void TProgrammeEssai::Fermer() {
  if (programme_ == nullptr) return;
  Fenetre().close();
  QCoreApplication::processEvents();
  qobject_cast<Application*>(qApp)->Dialogues = nullptr;
  programme_.reset();
}

void TProgrammeEssai::Ouvrir(TGestionnaire gestionnaire) {
  const BarreCommandes& barre = *Fenetre().Barre();
  for (const TCommandePrincipale& commande : Main().Commandes)
    if (commande.Gestionnaire == gestionnaire) QTest::mouseClick(barre.Onglet(commande.Page), Qt::LeftButton);
  QTest::mouseClick(barre.Bouton(gestionnaire), Qt::LeftButton);
  QCoreApplication::processEvents();
}

QWidget& TProgrammeEssai::LaMain() const {
  QWidget* fenetre = QApplication::activeModalWidget();
  if (fenetre == nullptr) {
    fenetre = &Fenetre();
    QApplication::setActiveWindow(fenetre);
    QCoreApplication::processEvents();
  }
  return fenetre->focusWidget() != nullptr ? *fenetre->focusWidget() : *fenetre;
}

bool TProgrammeEssai::EstIci(const QString& quoi) const {
  const QWidget& ici = LaMain();
  return ici.objectName() == quoi || ici.accessibleName() == quoi ||
         ici.property("text").toString() == quoi || TextesDe(ici).split(u'\n').contains(quoi);
}

void TProgrammeEssai::Presser(std::initializer_list<QKeyCombination> touches) const {
  for (const QKeyCombination touche : touches) {
    QTest::keyClick(&LaMain(), touche.key(), touche.keyboardModifiers());
    QCoreApplication::processEvents();
  }
}

void TProgrammeEssai::Jusqu(const QString& quoi, QKeyCombination touche) const {
  for (int i = 0; i < 80 && !EstIci(quoi); ++i) Presser({touche});
  ASSERT_TRUE(EstIci(quoi)) << quoi.toStdString() << ", but " << LaMain().accessibleName().toStdString();
}
