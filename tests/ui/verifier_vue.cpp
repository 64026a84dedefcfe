#include "ui/verifier_vue.h"

#include <QAccessible>
#include <QTest>
#include <QtWidgets>

#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kContenu(1117, 560);

template <class... Classes>
bool EstUn(const QObject* objet) {
  return (qobject_cast<const Classes*>(objet) || ...);
}

/// Made of parts by Qt itself: the parts are not controls of their own.
bool EstCompose(const QObject* objet) {
  return EstUn<QComboBox, QLineEdit, QAbstractSpinBox, QCalendarWidget, QHeaderView, QScrollBar>(objet) ||
         objet->objectName().startsWith(u"qt_"_s);
}

bool EstPartie(const QWidget* widget, const QWidget* vue) {
  for (const QObject* parent = widget->parent(); parent && parent != vue; parent = parent->parent())
    if (EstCompose(parent)) return true;
  return EstUn<QScrollBar, QHeaderView>(widget) || widget->objectName().startsWith(u"qt_"_s);
}

bool EstCommande(const QWidget* widget) {
  return EstUn<QAbstractItemView, QTextEdit, QPlainTextEdit, QAbstractButton, QLineEdit, QComboBox,
               QAbstractSpinBox, QAbstractSlider>(widget);
}

QString Designer(const QWidget* widget) {
  QString texte = widget->accessibleName();
  if (texte.isEmpty()) texte = widget->objectName();
  if (const auto* bouton = qobject_cast<const QAbstractButton*>(widget); bouton && texte.isEmpty())
    texte = bouton->text();
  if (const auto* libelle = qobject_cast<const QLabel*>(widget); libelle && texte.isEmpty())
    texte = libelle->text();
  const QWidget* parent = widget->parentWidget();
  return u"%1 « %2 » dans %3"_s.arg(
      QString::fromLatin1(widget->metaObject()->className()), texte,
      parent ? QString::fromLatin1(parent->metaObject()->className()) : QString());
}

QList<QWidget*> Visibles(QWidget& vue) {
  QList<QWidget*> visibles;
  for (QWidget* widget : vue.findChildren<QWidget*>())
    if (widget->isVisibleTo(&vue) && widget->window() == vue.window() && !EstPartie(widget, &vue))
      visibles += widget;
  return visibles;
}

/// All that gets the focus when Tab is pressed over and over.
QSet<const QWidget*> Parcourir(QWidget& vue) {
  QSet<const QWidget*> vus;
  for (int pas = 0; pas < 2000; ++pas) {
    QWidget* ici = vue.window()->focusWidget();
    if (!ici) ici = &vue;
    QTest::keyClick(ici, Qt::Key_Tab);
    const QWidget* la = vue.window()->focusWidget();
    if (!la || vus.contains(la)) break;
    vus += la;
    while ((la = la->parentWidget()) && la != &vue) vus += la;  // a combo box by its own line
  }
  return vus;
}

/// Tab goes to one of the group; the arrows lead to the others.
bool GroupeAtteint(const QWidget* widget, const QSet<const QWidget*>& vus) {
  const auto* bouton = qobject_cast<const QAbstractButton*>(widget);
  if (!bouton || !widget->parentWidget()) return false;
  const bool mois = widget->parentWidget()->inherits("GrilleMois");
  if (!mois && !bouton->autoExclusive() && !bouton->group()) return false;
  for (const auto* autre : widget->parentWidget()->findChildren<QAbstractButton*>())
    if (vus.contains(autre)) return true;
  return false;
}

bool EstCoupe(const QWidget* widget) {
  const QWidget* parent = widget->parentWidget();
  if (!parent) return false;
  const auto* defilable = qobject_cast<const QAbstractScrollArea*>(parent->parentWidget());
  if (defilable && defilable->viewport() == parent) return false;
  return !parent->rect().contains(widget->geometry());
}

bool EstTropPetit(const QWidget* widget) {
  if (!EstUn<QAbstractButton, QLabel, QComboBox, QLineEdit>(widget)) return false;
  const QSize moindre = widget->minimumSizeHint();
  const auto* libelle = qobject_cast<const QLabel*>(widget);
  if (libelle && libelle->wordWrap()) return widget->height() < libelle->heightForWidth(widget->width());
  return widget->width() < moindre.width() || widget->height() < moindre.height();
}

}  // namespace

QFont PoliceEssai(double points) {
  const QStringList familles = QFontDatabase::families();
  for (const char* nom : {"Noto Sans", "DejaVu Sans"})
    if (familles.contains(QLatin1String(nom))) return QFont(QLatin1String(nom), static_cast<int>(points));
  return {};
}

QStringList FautesDeVue(QWidget& vue) {
  const bool dialogue = qobject_cast<QDialog*>(&vue) != nullptr;
  QStringList fautes;
  if (!dialogue) {
    const QSize place = qobject_cast<QMainWindow*>(&vue) ? vue.minimumSize() : kContenu;
    const QSize moindre = vue.minimumSizeHint();
    if (QApplication::font().pointSize() <= 10 &&
        (moindre.width() > place.width() || moindre.height() > place.height()))
      fautes += u"plus grand que la place : %1 x %2"_s.arg(moindre.width()).arg(moindre.height());
    vue.resize(place);
  }
  vue.show();
  QApplication::setActiveWindow(vue.window());
  QApplication::processEvents();

  const QSet<const QWidget*> vus = Parcourir(vue);
  for (const QWidget* widget : Visibles(vue)) {
    if (EstCoupe(widget)) fautes += u"coupé : "_s + Designer(widget);
    if (EstTropPetit(widget)) fautes += u"trop petit pour son texte : "_s + Designer(widget);
    if (!EstCommande(widget)) continue;
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    if (!interface || interface->text(QAccessible::Name).trimmed().isEmpty())
      fautes += u"sans nom : "_s + Designer(widget);
    if (widget->isEnabledTo(nullptr) && !vus.contains(widget) && !GroupeAtteint(widget, vus))
      fautes += u"hors de portée de Tab : "_s + Designer(widget);
  }
  return fautes;
}

void VerifierVue(QWidget& vue) {
  for (const QString& faute : FautesDeVue(vue)) ADD_FAILURE() << faute.toStdString();
}

void Partout(const std::function<void()>& verifier) {
  for (const Theme::TMode mode : {Theme::TMode::Clair, Theme::TMode::Sombre})
    for (const int points : {10, 15}) {
      SCOPED_TRACE(testing::Message()
                   << (mode == Theme::TMode::Clair ? "clair, " : "sombre, ") << points << " points");
      QApplication::setFont(PoliceEssai(points));
      Theme::Appliquer(*qApp, mode);
      verifier();
    }
  QApplication::setFont(PoliceEssai(10));
  Theme::Appliquer(*qApp, Theme::TMode::Clair);
}

void VerifierVuePartout(const std::function<std::unique_ptr<QWidget>()>& creer) {
  Partout([&] { VerifierVue(*creer()); });
}
