#pragma once

#include "banc.h"

namespace torture {

/// Disks and folders that let the program down, one fault after the other: each must be told in the program's words,
/// naming the file, and must leave everything that was announced. With `toutes`, every call of every action fails once;
/// else one of each kind, at random.
void provoquerPannes(Banc& banc, bool toutes);

} // namespace torture
