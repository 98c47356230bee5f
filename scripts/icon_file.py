"""Writes icon files: one picture in several sizes."""
import io
import os
import struct

LARGE = 256  # from here on the system reads PNG only


def bitmap_bytes(image):
    """A picture as the format wants it: rows from the bottom, blue first, behind it a mask for displays without alpha."""
    width, height = image.size
    pixels = image.convert("RGBA").tobytes("raw", "BGRA", 0, -1)
    clear = image.getchannel("A").point(lambda alpha: 0 if alpha else 255).convert("1")
    mask = clear.tobytes("raw", "1", (width + 31) // 32 * 4, -1)
    header = struct.pack("<IiiHHIIiiII", 40, width, height * 2, 1, 32, 0, len(pixels) + len(mask), 0, 0, 0, 0)
    return header + pixels + mask


def png_bytes(image):
    out = io.BytesIO()
    image.save(out, "PNG")
    return out.getvalue()


def icon_bytes(images, packed=False):
    """The file's bytes, the pictures in the order given. Packed: all as PNG, which resource compilers do not take."""
    bodies = [png_bytes(image) if packed or image.width >= LARGE else bitmap_bytes(image) for image in images]
    out = struct.pack("<HHH", 0, 1, len(images))
    offset = len(out) + 16 * len(images)
    for image, body in zip(images, bodies):
        out += struct.pack("<BBBBHHII", image.width % 256, image.height % 256, 0, 0, 1, 32, len(body), offset)
        offset += len(body)
    return out + b"".join(bodies)


def write_changed(path, data):
    """Only what changed, so that nothing is built again for a picture that stayed."""
    os.makedirs(os.path.dirname(path), exist_ok=True)
    if os.path.exists(path):
        with open(path, "rb") as file:
            if file.read() == data:
                return
    with open(path, "wb") as file:
        file.write(data)
