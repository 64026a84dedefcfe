#include "documents/moteur_etiquettes.h"

#include <QFile>
#include <QFileInfo>

#include "core/exceptions.h"
#include "report/layout/mise_en_page.h"
#include "report/rapport.h"

using namespace Qt::StringLiterals;

namespace {

/// A label model is a few lines of text.
constexpr qint64 kTailleMaximum = 1024 * 1024;

}  // namespace

void TMoteurEtiquettes::OuvrirFichier(const QString& chemin) {
  const QString nom = QFileInfo(chemin).fileName();
  QFile fichier(chemin);
  if (!QFileInfo(chemin).isFile() || fichier.size() > kTailleMaximum || !fichier.open(QIODevice::ReadOnly))
    throw Exception(u"Le modèle d'étiquette « %1 » ne peut pas être lu."_s.arg(nom));
  OuvrirOctets(fichier.readAll(), nom);
}

void TMoteurEtiquettes::OuvrirOctets(const QByteArray& octets, const QString& nom) {
  TModele modele = LireModele(octets, nom);
  if (modele.Pages.size() != 1 || modele.Pages[0].Bandes.size() != 1 ||
      modele.Pages[0].Bandes[0].Sorte != TSorteBande::Maitre)
    throw Exception(
        u"« %1 » n'est pas un modèle d'étiquette : il y faut une page avec une seule bande « maitre »."_s.arg(
            nom));
  modele_ = std::move(modele);
  objets_.clear();
  for (const TObjetModele& objet : modele_.Pages[0].Bandes[0].Objets)
    if (!objet.Nom.isEmpty()) objets_[objet.Nom];
}

IObjetEtiquette* TMoteurEtiquettes::TrouverObjet(const QString& nom) {
  const auto objet = objets_.find(nom);
  return objet == objets_.end() ? nullptr : &objet->second;
}

void TMoteurEtiquettes::Imprimer(const QString& imprimante, const QString& port, int exemplaires) {
  TRapport rapport(u"Etiquette"_s, modele_.Nom);
  for (const auto& [nom, objet] : objets_) rapport.AjouterVariable(nom, objet.Texte);
  rapport.CopierArbre(TArbreRapport(1));
  sortie_(MettreEnPage(rapport, modele_), {imprimante, port, exemplaires});
}
