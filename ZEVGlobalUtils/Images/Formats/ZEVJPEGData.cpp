// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVJPEGMarkers_p.h>

#include <QByteArray>

#include <csetjmp>
#include <cstdio>
#include <vector>

#include <jpeglib.h>

namespace {

/// The decoder ends the process at an error unless it is led away.
struct ErrorManager {
    jpeg_error_mgr manager;
    std::jmp_buf back;
};

void leave(j_common_ptr decoder) { std::longjmp(reinterpret_cast<ErrorManager *>(decoder->err)->back, 1); }
void sayNothing(j_common_ptr) { }

/// The rows at an eighth of the size: what is asked is only whether there are all.
bool readsWithoutWarning(jpeg_decompress_struct &decoder, std::vector<JSAMPLE> &row)
{
    jpeg_read_header(&decoder, TRUE);
    decoder.scale_num = 1;
    decoder.scale_denom = 8;
    jpeg_start_decompress(&decoder);
    row.resize(std::size_t(decoder.output_width) * std::size_t(decoder.output_components));
    JSAMPROW rows[] = {row.data()};
    while (decoder.output_scanline < decoder.output_height)
        jpeg_read_scanlines(&decoder, rows, 1);
    return decoder.err->num_warnings == 0;
}

} // namespace

/// The marker is put there: without one, its want alone would be a warning.
bool ZEVJPEGMarkers::hasAllPixels(QByteArrayView bytes)
{
    QByteArray ended = bytes.toByteArray();
    ended.append("\xFF\xD9", 2);
    std::vector<JSAMPLE> row; // out here: the way back from an error runs no destructors
    ErrorManager error{};
    jpeg_decompress_struct decoder{};
    decoder.err = jpeg_std_error(&error.manager);
    error.manager.error_exit = leave;
    error.manager.output_message = sayNothing;
    volatile bool isWhole = false;
    if (setjmp(error.back) == 0) {
        jpeg_create_decompress(&decoder);
        jpeg_mem_src(&decoder, reinterpret_cast<const unsigned char *>(ended.constData()),
                     static_cast<unsigned long>(ended.size()));
        isWhole = readsWithoutWarning(decoder, row);
    }
    jpeg_destroy_decompress(&decoder);
    return isWhole;
}
