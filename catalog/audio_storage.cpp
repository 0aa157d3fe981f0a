#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_audio_storage{"audio_storage", nullptr, 0};
