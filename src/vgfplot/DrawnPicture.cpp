// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/DrawnPicture.h"

namespace tarsil {

DrawnPicture::~DrawnPicture() = default;

} // namespace tarsil
