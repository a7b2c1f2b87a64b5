// SPDX-License-Identifier: MIT
// dimeReader FILE reads a drawing with dime and prints the number of its entities.
#include <cstdio>

#include <dime/Input.h>
#include <dime/Model.h>
#include <dime/sections/EntitiesSection.h>

int main(int argc, char **argv)
{
    dimeInput input;
    dimeModel model;
    if (argc != 2 || !input.setFile(argv[1]) || !model.read(&input)) {
        return 1;
    }
    auto *entities = static_cast<dimeEntitiesSection *>(model.findSection("ENTITIES"));
    std::printf("%d\n", entities ? entities->getNumEntities() : 0);
    return 0;
}
