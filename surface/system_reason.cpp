#include "surface/system_reason.h"

#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace orvane {
namespace {

struct Reason {
  int error;
  std::string_view text;
};

constexpr std::array reasons{
    Reason{ENOENT, "ce fichier ou ce dossier n'existe pas"},
    Reason{EACCES, "accès refusé"},
    Reason{EPERM, "opération non permise"},
    Reason{EEXIST, "ce nom est déjà pris"},
    Reason{EISDIR, "c'est un dossier"},
    Reason{ENOTDIR, "un élément du chemin n'est pas un dossier"},
    Reason{ENOTEMPTY, "ce dossier n'est pas vide"},
    Reason{ENAMETOOLONG, "ce nom est trop long"},
    Reason{EINVAL, "ce nom n'est pas accepté ici"},
    Reason{ELOOP, "trop de liens se suivent"},
    Reason{ENOSPC, "il n'y a plus de place sur le disque"},
    Reason{EDQUOT, "le quota de disque est épuisé"},
    Reason{EFBIG, "le fichier est trop grand"},
    Reason{EROFS, "le disque est en lecture seule"},
    Reason{EBUSY, "le fichier est occupé"},
    Reason{EIO, "le disque ne répond pas correctement"},
    Reason{EMFILE, "trop de fichiers sont ouverts"},
    Reason{ENFILE, "trop de fichiers sont ouverts"},
    Reason{ENOMEM, "il n'y a plus assez de mémoire"},
};

}  // namespace

std::string systemReason(int error) {
  for (const auto& reason : reasons)
    if (reason.error == error) return std::string(reason.text);
  return std::generic_category().message(error);
}

}  // namespace orvane
