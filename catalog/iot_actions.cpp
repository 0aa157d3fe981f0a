#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_iot_actions{"iot_actions", nullptr, 0};
