#include "workflows/lien_lecteur.h"

#include <QSaveFile>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kBloc = 4096;

/// An open file of the device.
class TFichierDistant {
 public:
  TFichierDistant(ILienLecteur& lien, const QString& chemin)
      : lien_(lien), poignee_(lien.CeCreateFile(chemin)) {
    if (poignee_ == 0) throw Exception(u"Unable to open the remote file"_s);
  }
  ~TFichierDistant() { lien_.CeCloseHandle(poignee_); }
  TFichierDistant(const TFichierDistant&) = delete;
  TFichierDistant& operator=(const TFichierDistant&) = delete;

  /// Empty at the end.
  QByteArray LireBloc() {
    QByteArray bloc;
    if (!lien_.CeReadFile(poignee_, kBloc, bloc)) throw Exception(u"Unable to read data"_s);
    return bloc;
  }

 private:
  ILienLecteur& lien_;
  ILienLecteur::TPoignee poignee_;
};

}  // namespace

void CopierDepuisLecteur(ILienLecteur& lien, const QString& distant, const QString& local) {
  TFichierDistant source(lien, distant);
  QSaveFile copie(local);
  bool ecrit = copie.open(QIODevice::WriteOnly);
  for (QByteArray bloc = source.LireBloc(); ecrit && !bloc.isEmpty(); bloc = source.LireBloc())
    ecrit = copie.write(bloc) == bloc.size();
  // A failure of the flush inside commit would pass for success.
  if (!ecrit || !copie.flush() || !copie.commit())
    throw Exception(u"Le fichier « %1 » ne peut pas être écrit : %2"_s.arg(local, copie.errorString()));
}

void EffacerDuLecteur(ILienLecteur& lien, const QString& distant) {
  if (!lien.CeDeleteFile(distant)) throw Exception(u"Unable to delete the remote file"_s);
}
