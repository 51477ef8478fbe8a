.pragma library

// Everything below `item` that shows or accepts something, in the order of reading: what a text says,
// and of a link its address.
function texts(item) {
    let found = [];
    for (let i = 0; i < item.children.length; ++i) {
        const child = item.children[i];
        if (!child.visible) {
            continue;
        }
        if (child.address !== undefined) {
            found.push("[" + child.text + "]");
        } else if (child.textFormat !== undefined) {
            found.push(child.text);
        } else {
            found = found.concat(texts(child));
        }
    }
    return found;
}

// The items below `item` for which `test` holds, in order.
function all(item, test) {
    let found = [];
    for (let i = 0; i < item.children.length; ++i) {
        const child = item.children[i];
        if (child.visible) {
            if (test(child)) {
                found.push(child);
            }
            found = found.concat(all(child, test));
        }
    }
    return found;
}

function withText(item, text) {
    return all(item, child => child.text === text);
}

// The list that a view scrolls.
function list(view) {
    return all(view, child => child.contentY !== undefined && child.holds !== undefined)[0];
}
