% A node renders to a height x width x 4 uint8 array, alone or with its
% children, with its outline in the pixels.
n = VOR2.RectNode([0 0 10 10]);
img = n.render('None', 2);
assert(class(img), 'uint8');
assert(size(img, 3), 4);
[h, w, ~] = size(img);
assert(h >= 20 && h <= 24 && w >= 20 && w <= 24);
alpha = img(:, :, 4);
% The default stroke is a black hairline around an unfilled rectangle, inside
% one transparent pixel of border.
assert(alpha(1, 1), uint8(0));
mid = round(h / 2);
assert(max(alpha(mid, 1:4)) > 128);
assert(alpha(mid, round(w / 2)), uint8(0));
[~, col] = max(alpha(mid, 1:4));
assert(all(img(mid, col, 1:3) < 64));

% With its subtree the image takes the child in; alone it does not.
child = VOR2.RectNode([30 0 10 10]);
child.Parent = n;
alone = n.render('None', 1);
tree = n.render('ChildrenTree', 1);
assert(size(tree, 2) > size(alone, 2) + 20);
assert(max(max(tree(:, end - 3:end, 4))) > 128);

% A scale that is not positive gives an empty image.
assert(isempty(n.render('None', 0)));
expect_error(@() n.render('All', 1), 'VOR2:ExpectedEnumValue');
