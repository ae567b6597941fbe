"""The shapes of icons with Pillow: FOLDER [SIZE]; prints how many have the standard outline.

Decodes the largest picture of each icon file below the folder, or the one of that many pixels, averages it to 128 pixels a side and counts
opaque pixels inside and outside of the outline. Nothing is remembered.
"""
import glob, os, sys

from PIL import Image

side = 128
step = side // 32
grid = range(0, side, step)
distance = {i: abs(i - side / 2 + 0.5) / (0.85 * side / 2) for i in grid}
samples = [(x, y, distance[x] ** 4 + distance[y] ** 4 <= 1) for y in grid for x in grid]
inside = sum(sample[2] for sample in samples)
outside = len(samples) - inside


def is_squircle(path):
    with Image.open(path) as icon:
        if len(sys.argv) > 2:
            icon.size = (int(sys.argv[2]), int(sys.argv[2]), 1)
        picture = icon.convert("RGBA")
    if picture.width != picture.height:
        return False
    alpha = picture.resize((side, side), Image.Resampling.BOX).getchannel("A").load()
    opaque = [is_inside for x, y, is_inside in samples if alpha[x, y] > 128]
    return sum(opaque) / inside > 0.8 and (len(opaque) - sum(opaque)) / outside < 0.1


print(sum(map(is_squircle, glob.glob(os.path.join(sys.argv[1], "Applications/Shapes/*/Contents/Resources/icon.icns")))))
