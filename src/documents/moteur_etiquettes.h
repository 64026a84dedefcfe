#pragma once
#include <map>

#include "documents/etiquettes.h"
#include "report/layout/document_prepare.h"
#include "report/template/modele.h"

/// Where a finished label goes, and as what job.
struct TTravailEtiquette {
  QString Imprimante;
  QString Port;  ///< may be empty
  int Exemplaires = 1;
};

/// The program's own engine of labels: a model is a template of one page of the label's size, whose named
/// objects show the texts that they are given, as [NomEleve] for "NomEleve". A label is drawn as every
/// paper is; where it goes is for the owner to say.
class TMoteurEtiquettes final : public IMoteurEtiquettes {
 public:
  /// Takes the page of a label; it may raise Exception.
  using TSortie = std::function<void(const TDocumentPrepare& etiquette, const TTravailEtiquette& travail)>;

  explicit TMoteurEtiquettes(TSortie sortie) : sortie_(std::move(sortie)) {}

  /// Raises Exception, in French, for what is no model.
  void OuvrirFichier(const QString& chemin) override;
  /// The same of bytes; `nom` is for messages.
  void OuvrirOctets(const QByteArray& octets, const QString& nom);
  IObjetEtiquette* TrouverObjet(const QString& nom) override;
  void Imprimer(const QString& imprimante, const QString& port, int exemplaires) override;

 private:
  /// Both kinds of object show their text where the model says.
  struct TObjet final : IObjetEtiquette {
    void EcrireTexte(const QString& texte) override { Texte = texte; }
    void EcrireCodeBarres(const QString& texte) override { Texte = texte; }
    QString Texte;
  };

  TSortie sortie_;
  TModele modele_;
  std::map<QString, TObjet> objets_;  ///< the named objects of the model
};
