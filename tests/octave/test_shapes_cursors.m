% Shapes are changed in place and their set operations give new shapes;
% cursors by name, registered from image files, and on nodes.
a = VOR2.Shape();
assert(a.isEmpty());
a.addRect([0 0 10 10]);
b = a;
b.addEllipse([20 0 10 10]);
% Two variables on one shape see one shape.
assert(a.BoundingRect, [0 0 30 10]);
assert(a.contains([5 5]) && ~a.contains([15 5]));
assert(a.contains([1 1 2 2]));
assert(a.intersects([8 8 5 5]));

c = VOR2.Shape();
c.moveTo([0 0]);
c.lineTo([10 0]);
c.cubicTo([15 0], [15 10], [10 10]);
c.quadTo([5 15], [0 10]);
c.closeSubpath();
assert(c.ControlPointRect(1:3), [0 0 15]);
assert(c.BoundingRect(4) > 10 && c.BoundingRect(4) < 15);
assert(c.CurrentPosition, [0 0]);

square = VOR2.Shape(); square.addRect([0 0 10 10]);
other = VOR2.Shape(); other.addRect([5 0 10 10]);
u = square.united(other);
assert(u.BoundingRect, [0 0 15 10]);
i = square.intersected(other);
assert(i.BoundingRect, [5 0 5 10]);
d = square.subtracted(other);
assert(d.BoundingRect, [0 0 5 10]);
assert(square.BoundingRect, [0 0 10 10]);
inner = VOR2.Shape(); inner.addEllipse([5 5], 2, 2);
assert(square.contains(inner) && ~square.contains(u));
expect_error(@() square.contains([1 2 3]), 'DPoint:InvalidValue');

% Cursors.
n = VOR2.RectNode([0 0 10 10]);
assert(~n.hasCursor() && isempty(n.Cursor));
n.Cursor = VOR2.Cursor('PointingHand');
assert(n.hasCursor());
assert(n.Cursor.Name, 'PointingHand');
n.Cursor = 'IBeam';
assert(n.Cursor.Name, 'IBeam');
n.unsetCursor();
assert(~n.hasCursor());
expect_error(@() VOR2.Cursor('Pointer'), 'VOR2:ExpectedEnumValue');

file = [tempname() '.png'];
imwrite(uint8(255 * ones(16, 16, 3)), file);
cleanup = onCleanup(@() delete(file));
star = VOR2.Cursor.registerCustomCursor('star', file, 3, 4);
assert(star.Name, 'star');
n.Cursor = 'star';
assert(n.Cursor.Name, 'star');
again = VOR2.Cursor.registerCustomCursor('star', file);
assert(again.Name, 'star');
expect_error(@() VOR2.Cursor.registerCustomCursor('Arrow', file), 'VOR2:InvalidCursorName');
expect_error(@() VOR2.Cursor.registerCustomCursor('missing', [file '.none']), 'VOR2:InvalidCursorImage');
expect_error(@() VOR2.Cursor('missing'), 'VOR2:ExpectedEnumValue');
