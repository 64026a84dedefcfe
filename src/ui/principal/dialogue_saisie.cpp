#include "ui/principal/dialogue_saisie.h"

#include <QLineEdit>
#include <QPushButton>

#include "ui/commun/champ_libelle.h"

using namespace Qt::StringLiterals;

namespace {

bool EstServeur(const QString& titre) { return titre == u"Identification du Serveur de données"; }

/// What a person needs to know to answer, besides what is asked.
QString Aide(const QString& titre) {
  if (!EstServeur(titre)) return {};
  return u"Le nom « local » fait travailler ce poste seul, sans serveur : les données sont alors dans un "
         u"fichier "
         "de cet ordinateur, créé à la première ouverture."_s;
}

}  // namespace

DialogueSaisie::DialogueSaisie(const QString& titre, const QString& invite, const QString& valeur,
                               QWidget* parent)
    : DialogueBase(titre, parent), champ_(new QLineEdit(valeur)) {
  setMinimumWidth(Theme::Px(600));
  auto* champ = new ChampLibelle(invite.section(u'\n', 0, 0), champ_, ChampLibelle::Dessus);
  champ->Libelle()->setWordWrap(true);
  Contenu()->addWidget(champ);
  const QStringList notes = invite.split(u'\n').mid(1) + QStringList{Aide(titre)};
  for (const QString& texte : notes) {
    if (texte.isEmpty()) continue;
    auto* note = new Etiquette(texte, TRole::Secondaire);
    note->setWordWrap(true);
    Contenu()->addWidget(note);
  }
  if (EstServeur(titre)) {
    connect(AjouterBouton(u"&Travailler seul"_s), &QPushButton::clicked, this, [this] {
      champ_->setText(u"local"_s);
      accept();
    });
    DefinirPrincipal(u"&Se connecter à un serveur"_s);
  }
  resize(minimumWidth(), layout()->totalHeightForWidth(minimumWidth()));
  champ_->selectAll();
  champ_->setFocus();
}

QString DialogueSaisie::Texte() const { return champ_->text(); }
