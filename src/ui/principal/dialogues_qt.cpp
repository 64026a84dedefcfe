#include "ui/principal/dialogues_qt.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTreeView>

#include "core/formats.h"
#include "ui/commun/bouton.h"
#include "ui/commun/theme.h"
#include "ui/principal/dialogue_reessai.h"
#include "ui/principal/dialogue_saisie.h"

using namespace Qt::StringLiterals;

namespace {

void Preparer(QMessageBox& boite, const QString& texte, const QString& icone, TRole role) {
  boite.setWindowTitle(QApplication::applicationDisplayName());
  boite.setTextFormat(Qt::PlainText);  // a name is no markup
  boite.setText(QString(texte).remove(u'\r'));
  boite.setIconPixmap(
      Theme::Icone(icone, role).pixmap(QSize(Theme::Px(32), Theme::Px(32)), boite.devicePixelRatioF()));
}

void Dire(const QString& texte, const QString& icone, TRole role) {
  const TDevant devant;
  QMessageBox boite(devant.Fenetre());
  Preparer(boite, texte, icone, role);
  QPushButton* ok = BoutonPrincipal(u"OK"_s);
  boite.addButton(ok, QMessageBox::AcceptRole);
  boite.setDefaultButton(ok);
  boite.setEscapeButton(ok);
  boite.exec();
}

/// What the answer sets off may take long: the question does not stand there meanwhile.
void Effacer(QDialog& boite) {
  boite.hide();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

enum TColonneFichier { kTaille = 1, kType, kModifie };

/// Sizes and dates as the school writes them: the model writes them in the language of the machine.
class FichiersEnFrancais : public QIdentityProxyModel {
 public:
  using QIdentityProxyModel::QIdentityProxyModel;

  QVariant data(const QModelIndex& index, int role) const override {
    const auto* fichiers = qobject_cast<QFileSystemModel*>(sourceModel());
    const QModelIndex ici = mapToSource(index);
    if (role == Qt::DisplayRole && fichiers != nullptr && index.column() == kModifie)
      return LocaleEcole().toString(fichiers->lastModified(ici), u"dd/MM/yyyy HH:mm"_s);
    if (role == Qt::DisplayRole && fichiers != nullptr && index.column() == kTaille)
      return fichiers->isDir(ici) ? QString() : LocaleEcole().formattedDataSize(fichiers->size(ici));
    return QIdentityProxyModel::data(index, role);
  }
};

/// Qt's own dialog: names have the room, the kind of a file, which is not in French, goes.
void Habiller(QFileDialog& dialogue) {
  dialogue.setProxyModel(new FichiersEnFrancais(&dialogue));
  auto* detail = dialogue.findChild<QTreeView*>(u"treeView"_s);
  if (detail == nullptr) return;
  detail->hideColumn(kType);
  detail->header()->setStretchLastSection(false);
  detail->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  detail->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

/// Eats what was typed or pressed at what no longer stands there.
class Sourd : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* evenement) override {
    switch (evenement->type()) {
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
      case QEvent::Shortcut:
      case QEvent::ShortcutOverride:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
        return true;
      case QEvent::Close:  // the work is not quite over: what it stands on must not go
        evenement->ignore();
        return true;
      default:
        return false;
    }
  }
};

std::optional<QString> Choisi(QFileDialog& dialogue, QString& dossier) {
  Habiller(dialogue);
  if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty()) return {};
  const QString fichier = dialogue.selectedFiles().constFirst();
  dossier = QFileInfo(fichier).absolutePath();
  return fichier;
}

/// The folder used last; else the documents', which a new account may not have yet.
QString DossierDepart(const QString& dernier) {
  for (const QString& dossier :
       {dernier, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)})
    if (!dossier.isEmpty() && QFileInfo(dossier).isDir()) return dossier;
  return QDir::homePath();
}

}  // namespace

QWidget* FenetreDevant() {
  if (QWidget* modale = QApplication::activeModalWidget()) return modale;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* fenetre : QApplication::topLevelWidgets())
    if (fenetre->isVisible() && fenetre->windowType() == Qt::Window) return fenetre;
  return nullptr;
}

TDevant::TDevant() : fenetre_(FenetreDevant()), attente_(QApplication::overrideCursor() != nullptr) {
  if (attente_) QApplication::setOverrideCursor(Qt::ArrowCursor);
}

TDevant::~TDevant() {
  if (attente_) QApplication::restoreOverrideCursor();
  if (fenetre_ && fenetre_->isVisible()) fenetre_->activateWindow();
}

void DialoguesQt::Message(const QString& texte) { Dire(texte, u"data-warning"_s, TRole::Alerte); }

void DialoguesQt::Information(const QString& texte) { Dire(texte, u"data-information"_s, TRole::Accent); }

bool DialoguesQt::Confirmer(const QString& question) { return Demander(question, false); }

bool DialoguesQt::ConfirmerGrave(const QString& question) { return Demander(question, true); }

bool DialoguesQt::Demander(const QString& question, bool sansRetour) {
  const TDevant devant;
  QMessageBox boite(devant.Fenetre());
  Preparer(boite, question, sansRetour ? u"data-warning"_s : u"data-information"_s,
           sansRetour ? TRole::Alerte : TRole::Accent);
  const auto genre = [](bool principal) {
    return principal ? TGenreBouton::Principal : TGenreBouton::Simple;
  };
  QPushButton* oui = CreerBouton(genre(!sansRetour), u"&Oui"_s);
  QPushButton* non = CreerBouton(genre(sansRetour), u"&Non"_s);
  boite.addButton(oui, QMessageBox::YesRole);
  boite.addButton(non, QMessageBox::NoRole);
  boite.setDefaultButton(sansRetour ? non : oui);
  boite.setEscapeButton(non);
  boite.exec();
  Effacer(boite);
  return boite.clickedButton() == oui;
}

std::optional<QString> DialoguesQt::Saisir(const TSaisie& saisie) {
  const TDevant devant;
  DialogueSaisie dialogue(saisie, devant.Fenetre());
  if (dialogue.exec() != QDialog::Accepted) return {};
  return dialogue.Texte();
}

std::optional<QString> DialoguesQt::ChoisirFichier(const QString& titre, const QString& filtre) {
  const TDevant devant;
  QFileDialog dialogue(devant.Fenetre(), titre, DossierDepart(dossier_));
  dialogue.setFileMode(QFileDialog::ExistingFile);
  dialogue.setNameFilters({filtre, u"Tous les fichiers (*)"_s});
  return Choisi(dialogue, dossier_);
}

std::optional<QString> DialoguesQt::FichierAEnregistrer(const QString& titre, const QString& nom,
                                                        const QString& filtre) {
  const TDevant devant;
  QFileDialog dialogue(devant.Fenetre(), titre, DossierDepart(dossier_));
  dialogue.setAcceptMode(QFileDialog::AcceptSave);
  dialogue.setNameFilter(filtre);
  dialogue.setDefaultSuffix(QFileInfo(nom).suffix());
  dialogue.selectFile(nom);
  return Choisi(dialogue, dossier_);
}

bool DialoguesQt::Reessayer(const TReessai& reessai) {
  const TDevant devant;
  return DialogueReessai(reessai, devant.Fenetre()).exec() == QDialog::Accepted;
}

void DialoguesQt::Progression(int fait, int total, const QString& nom) { SurProgression(fait, total, nom); }

// What is typed or pressed while work runs would change what it stands on.
void DialoguesQt::TraiterEvenements() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

// Keys struck during a long work, when the window did not answer, were not meant for what comes after it.
void DialoguesQt::CurseurAttente(bool actif) {
  constexpr qint64 kLong = 2000;
  if (actif) {
    if (QApplication::overrideCursor() == nullptr) attente_.start();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    return;
  }
  QApplication::restoreOverrideCursor();
  if (QApplication::overrideCursor() != nullptr || !attente_.hasExpired(kLong)) return;
  Sourd sourd;
  QCoreApplication::instance()->installEventFilter(&sourd);
  QCoreApplication::processEvents();
}
