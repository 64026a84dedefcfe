#include "ui/principal/guide.h"

#include <QFile>
#include <QImage>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

// The linker drops the resources of a static library that nothing names.
static void AttacherGuide() { Q_INIT_RESOURCE(guide); }

namespace {

/// The pictures are larger than the page.
class PageGuide : public QTextBrowser {
 public:
  QVariant loadResource(int genre, const QUrl& nom) override {
    if (genre != QTextDocument::ImageResource) return QTextBrowser::loadResource(genre, nom);
    const QImage image(QString(u":/guide/" % nom.toString()));
    const int largeur = Theme::Px(kLargeur - 160);  // the margins, a list's too, and the scroll bar
    return image.width() <= largeur ? image : image.scaledToWidth(largeur, Qt::SmoothTransformation);
  }
  static constexpr int kLargeur = 760;
};

}  // namespace

Guide::Guide(QWidget* parent) : QDialog(parent, Qt::Window), page_(new PageGuide) {
  AttacherGuide();
  setWindowTitle(u"Guide de Calpenne"_s);
  QFile fichier(u":/guide/guide.md"_s);
  if (fichier.open(QIODevice::ReadOnly)) page_->setMarkdown(QString::fromUtf8(fichier.readAll()));
  page_->setAccessibleName(u"Guide"_s);
  page_->setFrameShape(QFrame::NoFrame);
  page_->document()->setDocumentMargin(Theme::Px(24));
  auto* colonne = new QVBoxLayout(this);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->addWidget(page_);
  resize(Theme::Px(PageGuide::kLargeur), Theme::Px(680));
}

QString Guide::Texte() const { return page_->toPlainText(); }

const std::vector<TToucheAide>& TouchesAide() {
  static const std::vector<TToucheAide> touches{
      {u"F1"_s, u"Guide"_s},
      {u"Maj+F1"_s, u"Cette liste"_s},
      {u"F2"_s, u"Modifier"_s},
      {u"F3"_s, u"Rechercher un élève"_s},
      {u"F5"_s, u"Relire les données (autres postes)"_s},
      {u"F6, Maj+F6"_s, u"Zone suivante, précédente"_s},
      {u"F7"_s, u"Nouveau"_s},
      {u"F8, Ctrl+P"_s, u"Imprimer"_s},
      {u"F9"_s, u"Enregistrer"_s},
      {u"Ctrl+Suppr"_s, u"Supprimer"_s},
      {u"Ctrl+Z"_s, u"Rétablir ce qui vient d'être supprimé"_s},
      {u"Entrée, Suppr, Espace"_s, u"Dans une liste : modifier, supprimer, cocher"_s},
      {u"Ctrl+F"_s, u"Dans une liste : filtrer"_s},
      {u"Maj+F10"_s, u"Le menu de ce qui est choisi"_s},
      {u"Ctrl+0"_s, u"Année affichée"_s},
      {u"Ctrl+1 à Ctrl+4"_s, u"Pages de la barre"_s},
      {u"Alt+lettre"_s, u"Écran de la page affichée"_s},
      {u"Flèches"_s, u"Élève suivant, précédent"_s},
      {u"Espace, une lettre"_s, u"Réservation : cocher la cellule"_s},
      {u"Alt+←, Alt+→"_s, u"Repas : jour précédent, suivant"_s},
      {u"Ctrl+R"_s, u"Repas : relire les commandes des autres postes"_s},
      {u"Ctrl+C, Ctrl+Maj+C"_s, u"Copier la sélection, toute la liste"_s},
      {u"Ctrl+F, F3"_s, u"Dans l'aperçu : rechercher, suivant"_s},
      {u"Ctrl+E"_s, u"Dans l'aperçu : exporter en PDF"_s},
      {u"Échap"_s, u"Fermer, annuler"_s},
  };
  return touches;
}

QWidget* ListeDesTouches() {
  auto* liste = new QTreeWidget;
  liste->setHeaderLabels({u"Touche"_s, u"Effet"_s});
  liste->setRootIsDecorated(false);
  liste->setAccessibleName(u"Touches"_s);
  for (const auto& [touche, effet] : TouchesAide()) new QTreeWidgetItem(liste, QStringList{touche, effet});
  liste->resizeColumnToContents(0);
  return liste;
}
