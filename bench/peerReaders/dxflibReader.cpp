// SPDX-License-Identifier: MIT
// dxflibReader FILE reads a drawing with dxflib and prints the number of its lines.
#include <cstdio>

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

class CKvLineCounter : public DL_CreationAdapter
{
public:
    void addLine(const DL_LineData &) override { ++m_count; }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

int main(int argc, char **argv)
{
    DL_Dxf reader;
    CKvLineCounter lines;
    if (argc != 2 || !reader.in(argv[1], &lines)) {
        return 1;
    }
    std::printf("%d\n", lines.count());
    return 0;
}
