"""Drawing for the theme tools: colours, pictures composited from shapes, and the .bmp
and .ico files they are written as. Plain Python; the same input gives the same bytes."""
import math
import struct

SUPER = 4  # supersampling per axis for smooth edges
WHITE = (1.0, 1.0, 1.0)
BLACK = (0.0, 0.0, 0.0)

# ---------------------------------------------------------------------------
# Colours: (r, g, b) floats in 0..1.

def rgb(hex_text):
    v = int(hex_text.lstrip("#"), 16)
    return ((v >> 16) / 255.0, ((v >> 8) & 0xFF) / 255.0, (v & 0xFF) / 255.0)


def mix(a, b, t):
    return tuple(a[i] + (b[i] - a[i]) * t for i in range(3))


def stops(points, t):
    """The colour at t along a list of (position, colour) stops."""
    t = min(max(t, points[0][0]), points[-1][0])
    for (p0, c0), (p1, c1) in zip(points, points[1:]):
        if t <= p1:
            return mix(c0, c1, (t - p0) / (p1 - p0) if p1 > p0 else 0.0)
    return points[-1][1]


def lighten(c, amount):
    return mix(c, (1.0, 1.0, 1.0), amount) if amount >= 0 else mix(c, (0.0, 0.0, 0.0), -amount)


def colorref(hex_text):
    """A settings colour: decimal 0x00BBGGRR."""
    v = int(hex_text.lstrip("#"), 16)
    r, g, b = v >> 16, (v >> 8) & 0xFF, v & 0xFF
    return str(b << 16 | g << 8 | r)


# ---------------------------------------------------------------------------
# Pictures: straight RGBA floats, composited with "over".

class Picture:
    def __init__(self, width, height, colour=(0.0, 0.0, 0.0), alpha=0.0):
        self.width = width
        self.height = height
        self.px = [[colour[0], colour[1], colour[2], alpha] for _ in range(width * height)]

    def at(self, x, y):
        return self.px[y * self.width + x]

    def over(self, x, y, colour, alpha):
        if alpha <= 0.0:
            return
        p = self.at(x, y)
        out = alpha + p[3] * (1.0 - alpha)
        for i in range(3):
            p[i] = (colour[i] * alpha + p[i] * p[3] * (1.0 - alpha)) / out
        p[3] = out

    def shade(self, fn):
        """fn(x, y) gives (colour, alpha) at the pixel's centre, laid over the pixel."""
        for y in range(self.height):
            for x in range(self.width):
                colour, alpha = fn(x + 0.5, y + 0.5)
                self.over(x, y, colour, alpha)

    def fill(self, inside, paint, alpha=1.0, samples=SUPER):
        """Lays paint(x, y) over the part where inside(x, y) holds, supersampled; with one
        sample per pixel the edges come out hard, as on an old screen."""
        n = samples * samples
        for y in range(self.height):
            for x in range(self.width):
                hits = 0
                for sy in range(samples):
                    for sx in range(samples):
                        if inside(x + (sx + 0.5) / samples, y + (sy + 0.5) / samples):
                            hits += 1
                if hits:
                    self.over(x, y, paint(x + 0.5, y + 0.5), alpha * hits / n)

    def rotated_left(self):
        """Turned a quarter counter-clockwise: the top edge becomes the left edge."""
        out = Picture(self.height, self.width)
        for y in range(self.height):
            for x in range(self.width):
                out.px[(self.width - 1 - x) * out.width + y] = list(self.at(x, y))
        return out


def byte(v):
    return max(0, min(255, int(round(v * 255.0))))


def bmp_bytes(picture):
    """A 24-bit bottom-up .bmp; transparent pixels come out black, so callers fill first."""
    stride = (picture.width * 3 + 3) & ~3
    rows = []
    for y in range(picture.height - 1, -1, -1):
        row = bytearray()
        for x in range(picture.width):
            r, g, b, _ = picture.at(x, y)
            row += bytes((byte(b), byte(g), byte(r)))
        row += b"\0" * (stride - len(row))
        rows.append(bytes(row))
    pixels = b"".join(rows)
    header = struct.pack("<2sIHHI", b"BM", 14 + 40 + len(pixels), 0, 0, 14 + 40)
    info = struct.pack("<IiiHHIIiiII", 40, picture.width, picture.height, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
    return header + info + pixels


def ico_image(picture):
    size = picture.width
    xor = bytearray()
    mask_stride = ((size + 31) // 32) * 4
    mask = bytearray()
    for y in range(size - 1, -1, -1):
        bits = 0
        row_mask = bytearray()
        for x in range(size):
            r, g, b, a = picture.at(x, y)
            xor += bytes((byte(b), byte(g), byte(r), byte(a)))
            bits = (bits << 1) | (1 if byte(a) == 0 else 0)
            if x % 8 == 7:
                row_mask.append(bits)
                bits = 0
        if size % 8:
            row_mask.append(bits << (8 - size % 8))
        row_mask += b"\0" * (mask_stride - len(row_mask))
        mask += row_mask
    info = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(xor) + len(mask), 0, 0, 0, 0)
    return info + bytes(xor) + bytes(mask)


def ico_bytes(pictures):
    images = [ico_image(p) for p in pictures]
    out = struct.pack("<HHH", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for picture, data in zip(pictures, images):
        size = picture.width if picture.width < 256 else 0
        out += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return out + b"".join(images)


# ---------------------------------------------------------------------------
# Shapes as distance functions: negative inside, in pixels.

def circle(cx, cy, r):
    return lambda x, y: math.hypot(x - cx, y - cy) - r


def rounded_box(x0, y0, x1, y1, r):
    cx, cy, hx, hy = (x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0) / 2 - r, (y1 - y0) / 2 - r

    def dist(x, y):
        qx, qy = abs(x - cx) - hx, abs(y - cy) - hy
        return math.hypot(max(qx, 0.0), max(qy, 0.0)) + min(max(qx, qy), 0.0) - r
    return dist


def segment(ax, ay, bx, by, width):
    def dist(x, y):
        px, py, dx, dy = x - ax, y - ay, bx - ax, by - ay
        h = min(max((px * dx + py * dy) / (dx * dx + dy * dy), 0.0), 1.0)
        return math.hypot(px - dx * h, py - dy * h) - width / 2
    return dist


def polyline(points, width):
    parts = [segment(a[0], a[1], b[0], b[1], width) for a, b in zip(points, points[1:])]
    return lambda x, y: min(p(x, y) for p in parts)


def ring(cx, cy, r, width, start_deg=None, end_deg=None):
    """A circle's outline; with angles, only the arc from start to end (degrees, clockwise
    on screen from the +x axis), with round ends."""
    def dist(x, y):
        if start_deg is not None:
            a = math.degrees(math.atan2(y - cy, x - cx)) % 360
            span = (end_deg - start_deg) % 360
            if (a - start_deg) % 360 > span:
                ends = [(cx + r * math.cos(math.radians(d)), cy + r * math.sin(math.radians(d)))
                        for d in (start_deg, end_deg)]
                return min(math.hypot(x - ex, y - ey) for ex, ey in ends) - width / 2
        return abs(math.hypot(x - cx, y - cy) - r) - width / 2
    return dist


def polygon(points):
    """Signed distance to a closed polygon."""
    def dist(x, y):
        d = (x - points[0][0]) ** 2 + (y - points[0][1]) ** 2
        sign = 1.0
        j = len(points) - 1
        for i in range(len(points)):
            (vix, viy), (vjx, vjy) = points[i], points[j]
            ex, ey, wx, wy = vjx - vix, vjy - viy, x - vix, y - viy
            h = min(max((wx * ex + wy * ey) / (ex * ex + ey * ey), 0.0), 1.0)
            d = min(d, (wx - ex * h) ** 2 + (wy - ey * h) ** 2)
            c1, c2, c3 = y >= viy, y < vjy, ex * wy > ey * wx
            if (c1 and c2 and c3) or (not c1 and not c2 and not c3):
                sign = -sign
            j = i
        return sign * math.sqrt(d)
    return dist


def union(*shapes):
    return lambda x, y: min(s(x, y) for s in shapes)


def inside(shape):
    return lambda x, y: shape(x, y) <= 0.0


def soft(picture, shape, colour, alpha, blur):
    """A blurred copy of a shape: its shadow or its glow."""
    def fn(x, y):
        d = shape(x, y)
        return colour, alpha * min(max(0.5 - d / blur, 0.0), 1.0)
    picture.shade(fn)


def shifted(shape, dx, dy):
    return lambda x, y: shape(x - dx, y - dy)


def scaled(shape_of, s):
    """shape_of builds a shape on a 16- or 20-pixel design grid; draw it s times larger."""
    shape = shape_of()
    return lambda x, y: shape(x / s, y / s) * s


