#include "report/output/pdf.h"

#include "core/exceptions.h"
#include "core/fichiers.h"
#include "report/output/pdf_pages.h"

using namespace Qt::StringLiterals;

namespace {

struct TEntree {
  QString Texte;
  int Niveau;
  int Page;  ///< its object
  TCentiemes Haut;
};

/// The table of contents as a tree: an entry belongs to the nearest one above it of a lower level.
class TSignetsPdf {
 public:
  TSignetsPdf(TEcrivainPdf& ecrivain, const std::vector<TEntree>& entrees)
      : ecrivain_(ecrivain), entrees_(entrees) {}

  /// Its object; 0 when there is no entry.
  int Ecrire() {
    if (entrees_.empty()) return 0;
    noeuds_.resize(entrees_.size() + 1);
    for (TNoeud& noeud : noeuds_) noeud.Objet = ecrivain_.Reserver();
    std::vector<std::size_t> ouverts{0};  // the root, then the entry of each level
    for (std::size_t i = 1; i < noeuds_.size(); ++i) {
      while (ouverts.size() > 1 && entrees_[ouverts.back() - 1].Niveau >= entrees_[i - 1].Niveau)
        ouverts.pop_back();
      noeuds_[i].Parent = ouverts.back();
      noeuds_[ouverts.back()].Enfants.push_back(i);
      ouverts.push_back(i);
    }
    ecrivain_.Objet(noeuds_[0].Objet, "<</Type/Outlines" + Enfants(noeuds_[0], 1) + ">>");
    for (const TNoeud& noeud : noeuds_)
      for (std::size_t rang = 0; rang < noeud.Enfants.size(); ++rang) EcrireEnfant(noeud, rang);
    return noeuds_[0].Objet;
  }

 private:
  struct TNoeud {
    int Objet = 0;
    std::size_t Parent = 0;
    std::vector<std::size_t> Enfants;
  };

  /// A negative count is an entry that shows folded.
  std::string Enfants(const TNoeud& noeud, int signe) const {
    if (noeud.Enfants.empty()) return {};
    return "/First " + Renvoi(noeuds_[noeud.Enfants.front()].Objet) + "/Last " +
           Renvoi(noeuds_[noeud.Enfants.back()].Objet) + "/Count " +
           std::to_string(signe * static_cast<int>(noeud.Enfants.size()));
  }
  void EcrireEnfant(const TNoeud& parent, std::size_t rang) {
    const TNoeud& noeud = noeuds_[parent.Enfants[rang]];
    const TEntree& entree = entrees_[parent.Enfants[rang] - 1];
    std::string objet = "<</Title" + ChainePdf(entree.Texte) + "/Parent " + Renvoi(parent.Objet);
    if (rang > 0) objet += "/Prev " + Renvoi(noeuds_[parent.Enfants[rang - 1]].Objet);
    if (rang + 1 < parent.Enfants.size()) objet += "/Next " + Renvoi(noeuds_[parent.Enfants[rang + 1]].Objet);
    objet += Enfants(noeud, -1) + "/Dest[" + Renvoi(entree.Page) + "/XYZ null ";
    AjouterDecimal(objet, entree.Haut, 2);
    ecrivain_.Objet(noeud.Objet, objet + " null]>>");
  }

  TEcrivainPdf& ecrivain_;
  const std::vector<TEntree>& entrees_;
  std::vector<TNoeud> noeuds_;  ///< the root first
};

class TFichierPdf {
 public:
  void Ajouter(const TDocumentPrepare& document, bool sousSonTitre) {
    bool premiere = true;
    for (const TPagePreparee& page : document.Pages) {
      const int objet = Page(page);
      const TCentiemes haut = CotePapier(page.Hauteur);
      if (sousSonTitre && std::exchange(premiere, false))
        signets_.push_back({document.Titre, -1, objet, haut});
      for (const TSignet& signet : page.Signets)
        signets_.push_back({signet.Texte, signet.Niveau, objet, haut});
    }
  }

  std::string Terminer(const QString& titre, const QString& auteur) {
    if (pages_.empty()) throw Exception(u"Il n'y a aucune page à mettre dans le fichier PDF."_s);
    ecrivain_.Objet(ressourcesObjet_, ressources_.Ecrire());
    std::string liste = "<</Type/Pages/Count " + std::to_string(pages_.size()) + "/Kids[";
    for (const int page : pages_) liste += Renvoi(page) + ' ';
    ecrivain_.Objet(pagesObjet_, liste + "]>>");
    const int signets = TSignetsPdf(ecrivain_, signets_).Ecrire();
    // Printed as it is: bar codes and transfer slips have a size.
    std::string catalogue = "<</Type/Catalog/Pages " + Renvoi(pagesObjet_) +
                            "/Lang(fr-BE)/ViewerPreferences<</DisplayDocTitle true/PrintScaling/None>>";
    if (signets != 0) catalogue += "/PageMode/UseOutlines/Outlines " + Renvoi(signets);
    const int informations =
        ecrivain_.Objet("<</Title" + ChainePdf(titre) + "/Author" + ChainePdf(auteur) + ">>");
    return ecrivain_.Terminer(ecrivain_.Objet(catalogue + ">>"), informations);
  }

 private:
  int Page(const TPagePreparee& page) {
    const int contenu = ecrivain_.Flux("", TPagePdf(page, ressources_).Dessiner());
    std::string objet = "<</Type/Page/Parent " + Renvoi(pagesObjet_) + "/Resources " +
                        Renvoi(ressourcesObjet_) + "/Contents " + Renvoi(contenu) + "/MediaBox[0 0 ";
    AjouterPlaces(objet, {CotePapier(page.Largeur), CotePapier(page.Hauteur)});
    pages_.push_back(ecrivain_.Objet(objet + "]>>"));
    return pages_.back();
  }

  TEcrivainPdf ecrivain_;
  const int pagesObjet_ = ecrivain_.Reserver();
  const int ressourcesObjet_ = ecrivain_.Reserver();
  TRessourcesPdf ressources_{ecrivain_};
  std::vector<int> pages_;
  std::vector<TEntree> signets_;
};

std::string Pdf(const std::vector<const TDocumentPrepare*>& documents, const QString& titre,
                const QString& auteur) {
  TFichierPdf fichier;
  for (const TDocumentPrepare* document : documents) fichier.Ajouter(*document, documents.size() > 1);
  return fichier.Terminer(titre, auteur);
}

}  // namespace

QByteArray PdfEnOctets(const std::vector<const TDocumentPrepare*>& documents, const QString& titre,
                       const QString& auteur) {
  return QByteArray::fromStdString(Pdf(documents, titre, auteur));
}

void EcrirePdf(const std::vector<const TDocumentPrepare*>& documents, const QString& titre,
               const QString& auteur, const QString& chemin) {
  const std::string octets = Pdf(documents, titre, auteur);
  EcrireFichier(chemin, QByteArrayView(octets.data(), static_cast<qsizetype>(octets.size())));
}
